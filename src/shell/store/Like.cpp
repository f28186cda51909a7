#include "shell/store/Like.h"

#include <QChar>
#include <cstdint>
#include <sqlite3.h>

namespace zuvora {

namespace {

// One character from the front of a text, folded for comparison. Bytes that are no UTF-8 count as one character each,
// above the range of Unicode so that they match only themselves.
struct Lettore {
    const char *p;
    const char *fine;

    bool finito() const { return p == fine; }
    char32_t prendi() {
        const auto c = static_cast<unsigned char>(*p);
        if (c < 0x80) {
            ++p;
            return c >= 'A' && c <= 'Z' ? c + 32U : c;
        }
        return prendiLungo(c);
    }

private:
    char32_t prendiLungo(unsigned char primo) {
        constexpr char32_t guasto = 0x110000;
        const int seguito = primo >= 0xF0 ? 3 : primo >= 0xE0 ? 2 : 1;
        ++p;
        if (primo < 0xC2 || primo > 0xF4 || fine - p < seguito)
            return guasto + primo;
        char32_t c = primo & (0x3FU >> seguito);
        for (int i = 0; i < seguito; ++i) {
            const auto b = static_cast<unsigned char>(p[i]);
            if ((b & 0xC0) != 0x80)
                return guasto + primo;
            c = (c << 6) | (b & 0x3FU);
        }
        p += seguito;
        return QChar::toCaseFolded(c);
    }
};

std::string_view testoDiArgomento(sqlite3_value *v) {
    const auto *t = reinterpret_cast<const char *>(sqlite3_value_text(v));
    return t == nullptr ? std::string_view() : std::string_view(t, static_cast<size_t>(sqlite3_value_bytes(v)));
}

void likeSql(sqlite3_context *contesto, int n, sqlite3_value **argomenti) {
    for (int i = 0; i < n; ++i)
        if (sqlite3_value_type(argomenti[i]) == SQLITE_NULL)
            return; // Null like anything is Null
    char32_t fuga = 0;
    if (n == 3) {
        const std::string_view f = testoDiArgomento(argomenti[2]);
        Lettore l{f.data(), f.data() + f.size()};
        if (!l.finito())
            fuga = l.prendi();
        if (fuga == 0 || !l.finito()) {
            sqlite3_result_error(contesto, "ESCAPE expression must be a single character", -1);
            return;
        }
    }
    const std::string_view modello = testoDiArgomento(argomenti[0]);
    sqlite3_result_int(contesto, simile(modello, testoDiArgomento(argomenti[1]), fuga) ? 1 : 0);
}

} // namespace

bool simile(std::string_view modello, std::string_view testo, char32_t fuga) {
    Lettore m{modello.data(), modello.data() + modello.size()};
    Lettore t{testo.data(), testo.data() + testo.size()};
    // The latest `*` takes one more character whenever what follows it fails: no recursion, no limit on the pattern.
    Lettore dopoStella{nullptr, nullptr};
    Lettore ripresa{nullptr, nullptr};
    while (true) {
        bool riuscito = false;
        if (m.finito()) {
            if (t.finito())
                return true;
        } else {
            const char32_t c = m.prendi();
            const bool letterale = fuga != 0 && c == fuga && !m.finito();
            if (!letterale && c == U'*') {
                if (m.finito())
                    return true;
                dopoStella = m;
                ripresa = t;
                continue;
            }
            const char32_t atteso = letterale ? m.prendi() : c;
            if (!t.finito()) {
                const char32_t trovato = t.prendi();
                riuscito = trovato == atteso || (!letterale && c == U'?');
            }
        }
        if (riuscito)
            continue;
        if (dopoStella.p == nullptr || ripresa.finito())
            return false;
        ripresa.prendi();
        m = dopoStella;
        t = ripresa;
    }
}

int installaLike(sqlite3 *db) {
    constexpr int modo = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    for (const int argomenti : {2, 3})
        if (const int rc = sqlite3_create_function(db, "like", argomenti, modo, nullptr, likeSql, nullptr, nullptr);
            rc != SQLITE_OK)
            return rc;
    return SQLITE_OK;
}

} // namespace zuvora
