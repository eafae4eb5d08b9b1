#pragma once
// Every record format of the game.
#include "world/records/calendar_records.h"
#include "world/records/chartrun_records.h"
#include "world/records/events_records.h"
#include "world/records/label_records.h"
#include "world/records/ledger_records.h"
#include "world/records/live_records.h"
#include "world/records/production_records.h"
#include "world/records/reference_records.h"
#include "world/records/session_records.h"
#include "world/records/talent_records.h"

namespace trovane {
// A four-byte scratch record (the support-band list of a tour plan).
#define SCRATCH4_FIELDS(X) X(value, int32_t)
TROVANE_RECORD_NOID(Scratch4Record, 4, SCRATCH4_FIELDS);
}  // namespace trovane
