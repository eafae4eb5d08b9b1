#pragma once
// The shared helpers of the game logic in one include: numbers and money
// steps, the grammar of news texts, dates, and the pick-list rows.
#include "session/date_helpers.h"
#include "session/grammar.h"
#include "session/list_fillers.h"
#include "session/number_helpers.h"
