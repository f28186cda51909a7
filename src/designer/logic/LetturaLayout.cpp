#include "designer/logic/LetturaLayout.h"

#include "shell/logic/Percorsi.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <algorithm>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int primaRigaConAvvisi = 33;

} // namespace

QString EsitoLettura::testo(int massimo) const {
    QStringList mostrati = avvisi.mid(0, massimo);
    if (avvisi.size() > massimo)
        mostrati.append(u"... e altri %1 avvisi."_s.arg(avvisi.size() - massimo));
    return mostrati.join(u'\n');
}

LetturaLayout::LetturaLayout(DisplayLayout &layout, CaricatoreImmagini &immagini, QString cartella)
    : m_layout(layout), m_immagini(immagini), m_cartella(std::move(cartella)) {
    m_layout.setCornice(percorsoIn(m_cartella, nomi::corniceLibera));
    Data dato;
    dato.limite = righeLayout;
    Recordset &rs = apri(dato, m_cartella, layout.NomeTabella());
    for (int posto = 0; posto < righeLayout && !rs.Eof(); ++posto) {
        leggiRiga(rs, posto);
        ++m_esito.righe;
        rs.MoveNext();
    }
}

EsitoLettura LetturaLayout::risolvi() {
    if (m_sfondo)
        risolviSfondo(*m_sfondo);
    for (const int posto : m_conImmagine)
        risolviDecorazione(posto);
    ordinaAvvisi();
    if (m_esito.righe < righeLayout)
        m_esito.avvisi.prepend(u"La tabella %1 ha solo %2 righe su %3: gli altri elementi restano ai valori "
                               "iniziali e non verranno salvati."_s.arg(m_layout.NomeTabella())
                                   .arg(m_esito.righe)
                                   .arg(righeLayout));
    return std::move(m_esito);
}

void LetturaLayout::leggiRiga(Recordset &rs, int posto) {
    LayoutElement &e = m_layout[posto];
    if (e.tipo == TipoElemento::Label2)
        return leggiSfondo(rs);
    for (const ColonnaLayout c : righe()[static_cast<std::size_t>(posto)].lette) {
        const auto v = valore(rs, posto, c);
        if (!v)
            continue;
        if (c == ColonnaLayout::PercorsoImmagine) {
            e.immagine = testoDi(*v, {});
            e.cornice = false;
        } else if (impostaValore(m_layout, posto, c, *v) == EsitoValore::NonValido) {
            avvisa(posto,
                   u"Riga %1, %2: il valore della colonna %3 non è valido e non è stato letto."_s.arg(posto + 1).arg(
                       e.nomeParlato(), nomeColonna(c)));
        }
    }
    if (e.tipo == TipoElemento::Image1)
        chiediImmagine(posto);
}

// A column of the current row; nothing when the table has no such column. Any other failure of the engine ends the
// reading, for the rows behind it would be lost at the next save.
std::optional<Valore> LetturaLayout::valore(Recordset &rs, int posto, ColonnaLayout c) {
    try {
        return rs[nomeColonna(c)].Value();
    } catch (const EngineError &errore) {
        if (errore.numero() != Errore::ColonnaNonTrovata && errore.numero() != Errore::TipoNonValido)
            throw;
    }
    if (!m_colonneMancanti.contains(c) && posto + 1 >= primaRigaConAvvisi) {
        m_colonneMancanti.insert(c);
        avvisa(posto,
               u"Nella tabella %1 non si può leggere la colonna %2."_s.arg(m_layout.NomeTabella(), nomeColonna(c)));
    }
    return std::nullopt;
}

void LetturaLayout::avvisa(int posto, const QString &frase) {
    if (posto + 1 >= primaRigaConAvvisi)
        m_avvisi.emplace_back(posto, frase);
}

void LetturaLayout::ordinaAvvisi() {
    std::ranges::stable_sort(m_avvisi, {}, &Avviso::first);
    for (const Avviso &avviso : m_avvisi)
        m_esito.avvisi.append(avviso.second);
}

void LetturaLayout::prepara(const QString &percorso) {
    m_immagini.prepara(percorso);
    m_percorsi << percorso;
}

// Row 32. Whether its picture can be loaded is asked once all rows are read.
void LetturaLayout::leggiSfondo(Recordset &rs) {
    m_sfondo = valore(rs, DisplayLayout::postoDi(TipoElemento::Label2), ColonnaLayout::PercorsoImmagine);
    if (!m_sfondo)
        return;
    prepara(testoDi(*m_sfondo, {}));
    if (m_layout.eBase())
        prepara(percorsoIn(m_cartella, nomi::sfondoBase));
}

// A free slot shows its frame, so that its own picture need not be decoded.
void LetturaLayout::chiediImmagine(int posto) {
    LayoutElement &e = m_layout[posto];
    e.cornice = e.cornice || !e.visibile;
    prepara(m_layout.immagineMostrata(e));
    m_conImmagine.push_back(posto);
}

void LetturaLayout::risolviSfondo(const Valore &v) {
    const QString percorso = testoDi(v, {});
    if (!percorso.isEmpty() && !m_immagini.carica(percorso))
        return;
    m_layout.tela().immagine = percorso;
    if (!eNull(v))
        m_layout.Label2() = percorso;
    if (!m_layout.eBase())
        return;
    if (const QString base = percorsoIn(m_cartella, nomi::sfondoBase); m_immagini.carica(base))
        m_layout.tela().immagine = base;
}

void LetturaLayout::risolviDecorazione(int posto) {
    LayoutElement &e = m_layout[posto];
    const QString &percorso = m_layout.immagineMostrata(e);
    e.immagineMancante = !percorso.isEmpty() && !m_immagini.carica(percorso);
    if (!e.immagineMancante || (e.cornice && std::exchange(m_corniceSegnalata, true)))
        return;
    avvisa(posto, e.cornice ? u"La cornice delle decorazioni libere %1 non si trova o non è leggibile."_s.arg(
                                  accorciato(percorso))
                            : u"%1: l'immagine %2 non si trova o non è leggibile. Il percorso resta memorizzato."_s.arg(
                                  e.nomeParlato(), accorciato(percorso)));
}

EsitoLettura CaricaLayout(DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella) {
    return LetturaLayout(layout, immagini, cartella).risolvi();
}

} // namespace zuvora
