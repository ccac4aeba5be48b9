#include "platform/jet/parser.h"
#include "platform/jet/printer.h"

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

namespace {

struct Reading {
    jet::Parsed parsed;
    std::string printed;
};

Reading read(std::string_view sql) {
    jet::Shape shape;
    jet::scanShape(sql, shape);
    jet::Parsed parsed = jet::parse(sql);
    std::string printed = jet::print(parsed.statement, shape.literals);
    return {std::move(parsed), std::move(printed)};
}

std::optional<Reading> tryToRead(std::string_view sql) {
    try {
        return read(sql);
    } catch (const jet::Error&) {
        return std::nullopt;
    }
}

} // namespace

/// A statement is refused with an Error, or what is printed of it reads as the same statement again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view sql(reinterpret_cast<const char*>(data), size);
    const std::optional<Reading> first = tryToRead(sql);
    if (first && read(first->printed).printed != first->printed) std::abort();
    return 0;
}
