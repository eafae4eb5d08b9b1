#include "world/numbers.h"

#include <fmt/format.h>

namespace trovane {

void throwOverflow(const char* targetKind, double value) {
    throw FatalError(fmt::format("Overflow: {} does not fit in a {} field", value, targetKind));
}

}  // namespace trovane
