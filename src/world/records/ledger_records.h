#pragma once
// The books' history: one row per label at each close of its books, so the
// finances can be shown month by month and a label's cash traced back to them.
#include "world/records/label_records.h"

namespace trovane {

// figures: the month just closed, category by category (the label's opening
// figures on the row a new game writes); cash: the balance once the books closed.
#define LEDGER_FIELDS(X)     \
    X(id, int32_t)           \
    X(label, int16_t)        \
    X(date, double)          \
    X(figures, LedgerPeriod) \
    X(cash, Money)
TROVANE_RECORD(LedgerRecord, 142, id, LEDGER_FIELDS);

}  // namespace trovane
