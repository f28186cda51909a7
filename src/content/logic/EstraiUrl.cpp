#include "content/logic/EstraiUrl.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qsizetype finoAlleVirgolette = 5; // from the first letter of src= to the one behind the quote
constexpr qsizetype dietroIndirizzo = 2;    // closing quote and blank

} // namespace

std::optional<QString> EstraiUrl(const QString &Codice) {
    // Positions count from 1, and 0 is not found.
    const qsizetype a = Codice.indexOf(u"src="_s) + 1;
    const qsizetype b = Codice.indexOf(u"frameborder"_s) + 1;
    const qsizetype inizio = a + finoAlleVirgolette;
    const qsizetype lunghezza = b - inizio - dietroIndirizzo;
    if (lunghezza < 0)
        return std::nullopt;
    return Codice.mid(inizio - 1, lunghezza) + u"&autoplay=1&autohide=1"_s;
}

} // namespace zuvora
