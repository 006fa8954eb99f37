#pragma once

// The records of all the service's answers, for files that need every one.

#include "model/bodies/EmptyResponse.h"
#include "model/bodies/MonitorMetricsResponse.h"
#include "model/bodies/StatusPagesStatusEnvelope.h"
#include "model/records/Component.h"
#include "model/records/ComponentGroup.h"
#include "model/records/ComponentMonitor.h"
#include "model/records/Incident.h"
#include "model/records/IncidentState.h"
#include "model/records/Maintenance.h"
#include "model/records/Monitor.h"
#include "model/records/MonitorWithMetrics.h"
#include "model/records/OnCallStatus.h"
#include "model/records/StatusPage.h"
#include "model/records/StatusPageAnalytics.h"
#include "model/records/Team.h"
