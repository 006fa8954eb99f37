#pragma once

// The records that the service answers with, for those who need them all.

#include "model/Component.h"
#include "model/ComponentGroup.h"
#include "model/ComponentMonitor.h"
#include "model/EmptyResponse.h"
#include "model/Incident.h"
#include "model/IncidentState.h"
#include "model/Maintenance.h"
#include "model/Monitor.h"
#include "model/MonitorMetricsResponse.h"
#include "model/MonitorWithMetrics.h"
#include "model/OnCallStatus.h"
#include "model/StatusPage.h"
#include "model/StatusPageAnalytics.h"
#include "model/StatusPagesStatusEnvelope.h"
#include "model/Team.h"
