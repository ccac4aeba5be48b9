#pragma once

#include "platform/jet/database.h"

namespace store {

/// The lists that a new house starts with, in tables of the shared file: countries, salutations, card kinds, and the
/// two words by which lists show a YESNO. The tables must be empty.
void fillSharedLists(jet::Database& database);
/// The same in tables of the source file: payment kinds, and the nationwide holidays of 2020 to 2035.
void fillSourceLists(jet::Database& database);

} // namespace store
