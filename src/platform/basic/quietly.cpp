#include "platform/basic/quietly.h"

#include <cstdlib>
#include <iostream>

namespace basic {

void traceError(const Error& error, Place place) {
    if (std::getenv("HERBERGO_TRACE") == nullptr) return;
    std::cerr << error.number() << ": " << error.text() << " (" << place.file << ':' << place.line << ")\n";
}

} // namespace basic
