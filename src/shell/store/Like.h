#pragma once

#include <string_view>

struct sqlite3;

namespace zuvora {

// The engine's `like`, on UTF-8: `*` is any run of characters, `?` any one character, without regard to case, accented
// letters included. Every other character stands for itself, `%`, `_`, `#` and `[` too, so that a name typed by the
// user always matches itself. After `fuga` (a character, 0 for none) a wildcard stands for itself.
bool simile(std::string_view modello, std::string_view testo, char32_t fuga = 0);

// Puts `simile` in the place of SQLite's own LIKE operator on this connection.
int installaLike(sqlite3 *db);

} // namespace zuvora
