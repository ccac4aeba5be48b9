#include "platform/jet/sql_functions.h"

#include "platform/basic/like.h"
#include "platform/basic/numbers.h"
#include "platform/basic/text.h"
#include "platform/jet/field_value.h"
#include "platform/jet/functions.h"
#include "platform/services/clock.h"

#include <sqlite3.h>

#include <array>
#include <cmath>
#include <memory>
#include <new>

namespace jet {

namespace {

constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
constexpr std::size_t mostArguments = 8;

std::string_view textOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

Value byStorage(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return static_cast<std::int64_t>(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_NULL:
        return {};
    default:
        return textOf(value);
    }
}

Value valueOf(sqlite3_value* value, char type) {
    if (sqlite3_value_type(value) == SQLITE_NULL) return {};
    switch (type) {
    case 'b':
        return sqlite3_value_int64(value) != 0;
    case 'i':
        return static_cast<std::int64_t>(sqlite3_value_int64(value));
    case 'd':
        return sqlite3_value_double(value);
    case 't':
        return Date(sqlite3_value_double(value));
    case 's':
        return textOf(value);
    default:
        return byStorage(value);
    }
}

void giveText(sqlite3_context* context, std::string_view text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void give(sqlite3_context* context, const Value& value) {
    switch (value.kind()) {
    case Value::Kind::Null:
        return sqlite3_result_null(context);
    case Value::Kind::Boolean:
        return sqlite3_result_int(context, value.boolOr() ? -1 : 0);
    case Value::Kind::Integer:
        return sqlite3_result_int64(context, value.longOr());
    case Value::Kind::Double:
        return sqlite3_result_double(context, value.doubleOr());
    case Value::Kind::Date:
        return sqlite3_result_double(context, value.dateOr().serial());
    case Value::Kind::Text:
        return giveText(context, value.text());
    }
}

void giveError(sqlite3_context* context, int number, const std::string& text) {
    const std::string message = "jet:" + std::to_string(number) + ":" + text;
    sqlite3_result_error(context, message.data(), static_cast<int>(message.size()));
}

/// Nothing may be thrown through the storage engine: errors become its own and are turned back behind it.
template <typename Body>
void guarded(sqlite3_context* context, const Body& body) {
    try {
        body();
    } catch (const Error& error) {
        giveError(context, error.number(), error.text());
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& error) {
        giveError(context, static_cast<int>(ErrorNumber::Internal), error.what());
    }
}

/// Calls with the values behind the first argument, which holds the letters of their types.
template <typename Call>
void withArguments(int count, sqlite3_value** values, const Call& call) {
    std::array<Value, mostArguments> arguments;
    const std::string_view types = textOf(values[0]);
    const std::size_t given = std::min(static_cast<std::size_t>(count - 1), types.size());
    for (std::size_t i = 0; i < given; ++i)
        arguments[i] = valueOf(values[i + 1], types[i]);
    call(std::span<const Value>(arguments.data(), given));
}

/// What a registered function knows besides its arguments.
struct Registered {
    const Function* function;
    const services::Clock* clock;
};

void callFunction(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const auto& registered = *static_cast<const Registered*>(sqlite3_user_data(context));
        withArguments(count, values, [&](std::span<const Value> arguments) {
            give(context, registered.function->evaluate(arguments, registered.clock->today()));
        });
    });
}

template <Value (*operation)(const Value&, const Value&)>
void callOperator(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        withArguments(count, values, [&](std::span<const Value> a) { give(context, operation(a[0], a[1])); });
    });
}

/// j_concat(types, value, ...): a chain of &, from left to right.
void callConcat(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const std::string_view types = textOf(values[0]);
        Value joined = valueOf(values[1], types[0]);
        for (std::size_t i = 1; i + 1 < static_cast<std::size_t>(count); ++i)
            joined = basic::concat(joined, valueOf(values[i + 1], types[i]));
        give(context, joined);
    });
}

void callNegate(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        withArguments(count, values, [&](std::span<const Value> a) { give(context, basic::negate(a[0])); });
    });
}

/// Any value as its German text; Null stays Null.
void callText(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        withArguments(count, values, [&](std::span<const Value> a) {
            give(context, a[0].isNull() ? Value() : basic::concat(a[0], Value("")));
        });
    });
}

/// j_like(types, text, pattern): the pattern is compiled once per statement where it does not change.
void callLike(sqlite3_context* context, int, sqlite3_value** values) {
    guarded(context, [&] {
        if (sqlite3_value_type(values[1]) == SQLITE_NULL || sqlite3_value_type(values[2]) == SQLITE_NULL)
            return sqlite3_result_null(context);
        const std::string_view types = textOf(values[0]);
        auto* pattern = static_cast<basic::LikePattern*>(sqlite3_get_auxdata(context, 2));
        std::unique_ptr<basic::LikePattern> fresh;
        if (!pattern) {
            fresh = std::make_unique<basic::LikePattern>(basic::concat(valueOf(values[2], types[1]), Value("")).text());
            pattern = fresh.get();
        }
        const bool matches = types[0] == 's'
                                 ? pattern->matches(textOf(values[1]))
                                 : pattern->matches(basic::concat(valueOf(values[1], types[0]), Value("")).text());
        sqlite3_result_int(context, matches ? 1 : 0);
        if (fresh)
            sqlite3_set_auxdata(context, 2, fresh.release(),
                                [](void* p) { delete static_cast<basic::LikePattern*>(p); });
    });
}

/// j_store(type, value, field type, size, flags, name): the value as the field keeps it.
void callStore(sqlite3_context* context, int, sqlite3_value** values) {
    guarded(context, [&] {
        const int flags = sqlite3_value_int(values[4]);
        Column column;
        column.name = SqlName(textOf(values[5]));
        column.type = static_cast<FieldType>(sqlite3_value_int(values[2]));
        column.size = sqlite3_value_int(values[3]);
        column.counter = (flags & 1) != 0;
        column.required = (flags & 2) != 0;
        column.allowZeroLength = (flags & 4) != 0;
        give(context, storedValue(column, valueOf(values[1], textOf(values[0]).front())));
    });
}

// Aggregates. Their state lives in memory of the storage engine, zeroed at first.

struct Single {
    sqlite3_value* value;
    bool seen;
};

template <typename State>
State* stateOf(sqlite3_context* context, bool create = true) {
    return static_cast<State*>(sqlite3_aggregate_context(context, create ? sizeof(State) : 0));
}

void singleStep(sqlite3_context* context, int, sqlite3_value** values) {
    auto* state = stateOf<Single>(context);
    if (!state) return sqlite3_result_error_nomem(context);
    if (state->seen) return guarded(context, [] { raise(ErrorNumber::SubqueryRows); });
    state->seen = true;
    state->value = sqlite3_value_dup(values[0]);
}

void firstStep(sqlite3_context* context, int, sqlite3_value** values) {
    if (auto* state = stateOf<Single>(context); state && !state->seen) {
        state->seen = true;
        state->value = sqlite3_value_dup(values[0]);
    }
}

void lastStep(sqlite3_context* context, int, sqlite3_value** values) {
    if (auto* state = stateOf<Single>(context)) {
        sqlite3_value_free(state->value);
        state->value = sqlite3_value_dup(values[0]);
    }
}

void singleFinal(sqlite3_context* context) {
    auto* state = stateOf<Single>(context, false);
    if (!state || !state->value) return sqlite3_result_null(context);
    sqlite3_result_value(context, state->value);
    sqlite3_value_free(state->value);
}

struct Moments {
    std::int64_t count;
    double mean;
    double squares; ///< sum of squared distances from the mean
};

void momentsStep(sqlite3_context* context, int, sqlite3_value** values) {
    auto* state = stateOf<Moments>(context);
    if (!state || sqlite3_value_type(values[0]) == SQLITE_NULL) return;
    const double value = sqlite3_value_double(values[0]);
    const double distance = value - state->mean;
    state->mean += distance / static_cast<double>(++state->count);
    state->squares += distance * (value - state->mean);
}

/// Divisor n - 1 for a sample, n for the whole population; the root for a deviation.
template <int sample, bool root>
void momentsFinal(sqlite3_context* context) {
    const auto* state = stateOf<Moments>(context, false);
    if (!state || state->count <= sample) return sqlite3_result_null(context);
    const double variance = state->squares / static_cast<double>(state->count - sample);
    sqlite3_result_double(context, root ? std::sqrt(variance) : variance);
}

int collate(void*, int lengthA, const void* a, int lengthB, const void* b) {
    return basic::compareText({static_cast<const char*>(a), static_cast<std::size_t>(lengthA)},
                              {static_cast<const char*>(b), static_cast<std::size_t>(lengthB)});
}

using ScalarFunction = void (*)(sqlite3_context*, int, sqlite3_value**);
using FinalFunction = void (*)(sqlite3_context*);

void addScalar(sqlite3* connection, const char* name, int arguments, ScalarFunction function) {
    sqlite3_create_function_v2(connection, name, arguments, pure, nullptr, function, nullptr, nullptr, nullptr);
}

void addAggregate(sqlite3* connection, const char* name, ScalarFunction step, FinalFunction final) {
    sqlite3_create_function_v2(connection, name, 1, pure, nullptr, nullptr, step, final, nullptr);
}

void addOperators(sqlite3* connection) {
    addScalar(connection, "j_add", 3, callOperator<basic::add>);
    addScalar(connection, "j_subtract", 3, callOperator<basic::subtract>);
    addScalar(connection, "j_multiply", 3, callOperator<basic::multiply>);
    addScalar(connection, "j_divide", 3, callOperator<basic::divide>);
    addScalar(connection, "j_intdivide", 3, callOperator<basic::integerDivide>);
    addScalar(connection, "j_modulo", 3, callOperator<basic::modulo>);
    addScalar(connection, "j_power", 3, callOperator<basic::power>);
    addScalar(connection, "j_concat", -1, callConcat);
    addScalar(connection, "j_negate", 2, callNegate);
    addScalar(connection, "j_text", 2, callText);
    addScalar(connection, "j_like", 3, callLike);
    addScalar(connection, "j_store", 6, callStore);
}

void addAggregates(sqlite3* connection) {
    addAggregate(connection, "j_single", singleStep, singleFinal);
    addAggregate(connection, "j_first", firstStep, singleFinal);
    addAggregate(connection, "j_last", lastStep, singleFinal);
    addAggregate(connection, "j_stdev", momentsStep, momentsFinal<1, true>);
    addAggregate(connection, "j_stdevp", momentsStep, momentsFinal<0, true>);
    addAggregate(connection, "j_var", momentsStep, momentsFinal<1, false>);
    addAggregate(connection, "j_varp", momentsStep, momentsFinal<0, false>);
}

} // namespace

void registerFunctions(sqlite3* connection, const services::Clock& clock) {
    sqlite3_create_collation_v2(connection, germanCollation, SQLITE_UTF8, nullptr, collate, nullptr);
    for (const Function& function : allFunctions()) {
        auto registered = std::make_unique<Registered>(Registered{&function, &clock});
        sqlite3_create_function_v2(connection, sqlFunctionName(function).c_str(), -1, pure, registered.release(),
                                   callFunction, nullptr, nullptr, [](void* p) { delete static_cast<Registered*>(p); });
    }
    addOperators(connection);
    addAggregates(connection);
}

} // namespace jet
