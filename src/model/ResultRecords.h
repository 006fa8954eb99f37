#pragma once

// The records of `Results`, for those who need them all.

#include "model/EmptyResponse.h"
#include "model/Incident.h"
#include "model/IncidentState.h"
#include "model/Maintenance.h"
#include "model/StatusPage.h"
#include "model/StatusPagesStatusEnvelope.h"
