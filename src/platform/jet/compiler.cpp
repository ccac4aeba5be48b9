#include "platform/jet/compiler.h"

#include "platform/jet/binder.h"
#include "platform/jet/emitter.h"

namespace jet {

Compiled compile(Parsed& parsed, const std::vector<LiteralValue>& literals, const Catalogue& catalogue,
                 Identities identities) {
    const Binding binding = bind(parsed, literals, catalogue);
    return emit(parsed.statement, binding, identities == Identities::Include);
}

} // namespace jet
