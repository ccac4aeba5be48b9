#pragma once

#include "platform/basic/error.h"

#include <string_view>

namespace basic {

/// The numbers of the errors that are raised. Statements and forms of the house react to some of them by value.
enum class ErrorNumber : int {
    // run-time library
    InvalidCall = 5,
    Overflow = 6,
    DivisionByZero = 11,
    TypeMismatch = 13,
    InvalidNull = 94,
    // files
    NotUpdatable = 3027,
    DiskFull = 3026,
    FileNotFound = 3024,
    WrongPassword = 3031,
    InvalidPath = 3044,
    Corrupt = 3049,
    CannotOpen = 3051,
    Locked = 3218,
    FileExists = 3204,
    UnknownFormat = 3343,
    DatabaseClosed = 3420,
    // statements
    TooFewParameters = 3061,
    Syntax = 3075,
    UnknownTable = 3078,
    AmbiguousField = 3079,
    JoinField = 3082,
    UnknownFunction = 3085,
    OrderByDistinct = 3093,
    AggregateMisuse = 3122,
    FieldListMismatch = 3346,
    UnionColumns = 3307,
    SubqueryRows = 3354,
    SubqueryColumns = 3306,
    CriteriaTypes = 3464,
    StatementKind = 3065,
    CannotDelete = 3086,
    CannotUpdateJoin = 3073,
    TooComplex = 3360,
    // schema
    TableExists = 3010,
    TableMissing = 3011,
    FieldExists = 3191,
    IndexExists = 3284,
    InvalidName = 3125,
    InvalidDefinition = 3292,
    // rows
    KeyViolation = 3022,
    NoEdit = 3020,
    NoCurrentRecord = 3021,
    FieldTooSmall = 3163,
    RowDeleted = 3167,
    RowChanged = 3197,
    NotSupported = 3251,
    ItemNotFound = 3265,
    ValueRequired = 3314,
    ZeroLength = 3315,
    FieldConversion = 3421,
    // transactions
    NoTransaction = 3034,
    InvalidBookmark = 3159,
    Internal = 3000,
};

/// The standing German text of a number, without a trailing detail.
[[nodiscard]] std::string_view standardText(ErrorNumber number);

/// Throws Error with the standing text, and the detail behind it where there is one: "text detail".
[[noreturn]] void raise(ErrorNumber number, std::string_view detail = {});

} // namespace basic
