#pragma once
// The shared helpers of the game logic in one include: numbers and money
// steps, the grammar of news texts, dates, and the pick-list rows.
#include "floor/date_helpers.h"
#include "floor/grammar.h"
#include "floor/list_fillers.h"
#include "floor/number_helpers.h"
