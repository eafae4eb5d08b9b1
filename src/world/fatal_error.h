#pragma once
// The one kind of failure the game logic raises: something that cannot go on
// (a number that does not fit its field, a damaged data file). The desktop
// program shows the message and ends; trovane-sim prints it and exits non-zero.
#include <stdexcept>
#include <string>

namespace trovane {

class FatalError : public std::runtime_error {
public:
    explicit FatalError(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace trovane

namespace trovane {

// A data file or a set of them that is damaged, incomplete or not what it
// claims to be; the message names the file. trovane-sim exits 5 for it.
class BrokenDataError : public FatalError {
public:
    explicit BrokenDataError(const std::string& what) : FatalError(what) {}
};

}  // namespace trovane
