#include "designer/logic/DisplayLayout.h"

#include "designer/logic/Righe.h"

#include <QDir>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView parolaAvanti = u"avanti";
constexpr QStringView parolaDietro = u"dietro";

// Kinds from the bottom of the stack to its top, as the form's definition lays them.
constexpr std::array ordineIniziale{
    TipoElemento::Image1, TipoElemento::Pannello1, TipoElemento::IM1, TipoElemento::MP1,   TipoElemento::WB1,
    TipoElemento::WB2,    TipoElemento::LeNews,    TipoElemento::YT,  TipoElemento::Text2, TipoElemento::Text9};

} // namespace

QString tabellaLayout(int numero) {
    if (numero < 0 || numero >= numeroLayout)
        return {};
    return numero == 0 ? u"LayoutBase"_s : u"Layout%1"_s.arg(numero);
}

int numeroLayoutDi(QStringView tabella) {
    for (int numero = 0; numero < numeroLayout; ++numero) {
        if (tabella.compare(tabellaLayout(numero), Qt::CaseInsensitive) == 0)
            return numero;
    }
    return -1;
}

DisplayLayout::DisplayLayout(QString nomeTabella) : m_nomeTabella(std::move(nomeTabella)) {
    for (int posto = 0; posto < righeLayout; ++posto) {
        const RigaLayout &riga = righe()[static_cast<std::size_t>(posto)];
        (*this)[posto] = valoreIniziale(riga.tipo, riga.indice);
    }
    for (const TipoElemento tipo : ordineIniziale) {
        for (int posto = 0; posto < righeLayout; ++posto) {
            if ((*this)[posto].tipo == tipo)
                m_ordine.append(posto);
        }
    }
}

bool DisplayLayout::eBase() const {
    return numeroLayoutDi(m_nomeTabella) == 0;
}

LayoutElement &DisplayLayout::elemento(TipoElemento tipo, int indice) {
    return (*this)[postoDi(tipo, indice)];
}

const LayoutElement &DisplayLayout::elemento(TipoElemento tipo, int indice) const {
    return (*this)[postoDi(tipo, indice)];
}

int DisplayLayout::postoDi(TipoElemento tipo, int indice) {
    const auto &tutte = righe();
    const auto trovata =
        std::ranges::find_if(tutte, [=](const RigaLayout &r) { return r.tipo == tipo && r.indice == indice; });
    return trovata == tutte.end() ? -1 : static_cast<int>(trovata - tutte.begin());
}

int DisplayLayout::postoDi(QStringView nome) {
    const auto &tutte = righe();
    const auto trovata = std::ranges::find_if(tutte, [nome](const RigaLayout &r) {
        return nome.startsWith(nomeTipo(r.tipo)) && nome == nomeElemento(r.tipo, r.indice);
    });
    return trovata == tutte.end() ? -1 : static_cast<int>(trovata - tutte.begin());
}

void DisplayLayout::portaAvanti(int posto) {
    if (m_ordine.removeOne(posto))
        m_ordine.append(posto);
}

void DisplayLayout::mandaDietro(int posto) {
    if (m_ordine.removeOne(posto))
        m_ordine.prepend(posto);
}

const QString &DisplayLayout::PercorsiDecorazione(int i) const {
    return elemento(TipoElemento::Image1, i).immagine;
}

QStringView DisplayLayout::PianiDecorazione(int i) const {
    return elemento(TipoElemento::Image1, i).avanti ? parolaAvanti : parolaDietro;
}

const QString &DisplayLayout::immagineMostrata(const LayoutElement &decorazione) const {
    return decorazione.cornice ? m_cornice : decorazione.immagine;
}

void DisplayLayout::setPiano(int i, bool avanti) {
    const int posto = postoDi(TipoElemento::Image1, i);
    (*this)[posto].avanti = avanti;
    if (avanti)
        portaAvanti(posto);
    else
        mandaDietro(posto);
}

Area DisplayLayout::areaSullaTela(int posto) const {
    const LayoutElement &e = (*this)[posto];
    if (e.tipo != TipoElemento::Text1)
        return e.area;
    const Area &pannello = elemento(TipoElemento::Pannello1, e.indice / 3).area;
    return {pannello.left + e.area.left, pannello.top + e.area.top, e.area.width, e.area.height};
}

} // namespace zuvora
