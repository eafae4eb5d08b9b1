#include "world/record_dump.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <fstream>
#include <iterator>
#include <vector>

#include <fmt/format.h>

#include "world/dates.h"
#include "world/fatal_error.h"

namespace trovane {

std::string jsonQuote(std::string_view s) {
    std::string out = "\"";
    for (char c : s) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (static_cast<unsigned char>(c) < 0x20)
                out += fmt::format("\\u{:04x}", c);
            else
                out += c;
        }
    }
    out += '"';
    return out;
}

namespace dump {

std::string dateValue(double serial) {
    if (serial >= 1 && serial < 2958466 && serial == static_cast<double>(static_cast<int64_t>(serial))) {
        auto d = civilFromSerial(serial);
        return fmt::format("{} ({:04}-{:02}-{:02})", static_cast<int64_t>(serial), d.year, d.month, d.day);
    }
    return realValue(serial, DumpFormat::text);
}

std::string realValue(double v, DumpFormat fmt) {
    if (fmt == DumpFormat::json && !std::isfinite(v)) return "null";
    return fmt::format("{}", v);
}

std::string realValue(float v, DumpFormat fmt) {
    if (fmt == DumpFormat::json && !std::isfinite(v)) return "null";
    return fmt::format("{}", v);
}

}  // namespace dump

std::string dumpTableFile(const std::filesystem::path& file, FileNo n, DumpFormat fmt) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw FatalError(fmt::format("Cannot open {}", file.string()));
    std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return withRecordType(n, [&]<class R>(std::type_identity<R>) {
        if (bytes.size() % R::kLength != 0)
            throw FatalError(fmt::format("{} is damaged: {} bytes is not a whole number of {}-byte records",
                                         file.string(), bytes.size(), R::kLength));
        std::string out = fmt == DumpFormat::json ? "[" : "";
        R rec{};
        for (std::size_t i = 0; i < bytes.size() / R::kLength; ++i) {
            decodeRecord(bytes.data() + i * R::kLength, rec);
            if (fmt == DumpFormat::json) {
                if (i) out += ",\n";
                out += recordToString(rec, fmt);
            } else {
                out += fmt::format("# record {}\n{}\n\n", i + 1, recordToString(rec, fmt));
            }
        }
        if (fmt == DumpFormat::json) out += "]\n";
        return out;
    });
}

}  // namespace trovane
