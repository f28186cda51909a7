#include "calling/logic/Postazioni.h"

#include "shell/store/Riga.h"

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array<QStringView, 2> tipi = {u"SG", u"ST"};

const QString &tabella() {
    static const QString nome = u"PostazioneUtente"_s;
    return nome;
}

QString colonna(int postazione) {
    return u"Posto%1SS"_s.arg(postazione + 1);
}

} // namespace

void ImpostaPostazione(const QString &cartella, int Index) {
    if (Index < 0 || Index >= 2 * numeroPostazioni)
        throw std::out_of_range("ImpostaPostazione");
    scriviRiga(cartella, tabella(), {{colonna(Index / 2), tipi[std::size_t(Index % 2)].toString()}});
}

std::array<int, numeroPostazioni> leggiPostazioni(const QString &cartella) {
    const Riga riga = leggiRiga(cartella, tabella());
    std::array<int, numeroPostazioni> scelte{};
    for (int i = 0; i < numeroPostazioni; ++i) {
        const QString tipo = riga.testo(colonna(i));
        scelte[std::size_t(i)] = tipo == tipi[0] ? 2 * i : tipo == tipi[1] ? 2 * i + 1 : -1;
    }
    return scelte;
}

} // namespace zuvora
