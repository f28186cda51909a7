#include "designer/logic/LetturaLayout.h"

#include "designer/logic/Righe.h"
#include "designer/logic/ValoriElemento.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"

#include <QSet>
#include <optional>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int primaRigaConAvvisi = 33;
constexpr QStringView sfondoBase = u"ZuvoraSfondiHD/FH_grigio_8post_.jpg";
constexpr QStringView corniceLibera = u"ZuvoraDecorazioni/Cornici/stondata.gif";

// How a sentence names an element.
QString descrizione(const LayoutElement &e) {
    switch (e.tipo) {
    case TipoElemento::Image1:
        return u"Decorazione %1"_s.arg(e.indice);
    case TipoElemento::Pannello1:
        return u"Pannello %1"_s.arg(e.indice + 1);
    case TipoElemento::Text2:
        return u"Testo scorrevole"_s;
    case TipoElemento::Tela:
        return u"Colore dello schermo"_s;
    default:
        return u"Riquadro "_s + e.nome();
    }
}

class Lettore {
public:
    Lettore(Recordset &rs, DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella)
        : m_rs(rs), m_layout(layout), m_immagini(immagini), m_cartella(cartella) {}

    EsitoLettura leggi() {
        if (m_rs.RecordCount() > 0)
            m_rs.MoveFirst();
        for (int posto = 0; posto < righeLayout && !m_rs.Eof(); ++posto) {
            leggiRiga(posto);
            ++m_esito.righe;
            m_rs.MoveNext();
        }
        if (m_esito.righe < righeLayout)
            m_esito.avvisi.prepend(u"La tabella %1 ha solo %2 righe su %3: gli altri elementi restano ai valori "
                                   "iniziali e non verranno salvati."_s.arg(m_layout.NomeTabella())
                                       .arg(m_esito.righe)
                                       .arg(righeLayout));
        return std::move(m_esito);
    }

private:
    void leggiRiga(int posto) {
        const LayoutElement &e = m_layout[posto];
        if (e.tipo == TipoElemento::Label2)
            return leggiSfondo();
        for (const ColonnaLayout c : righe()[static_cast<std::size_t>(posto)].lette) {
            const auto v = valore(posto, c);
            if (!v)
                continue;
            if (c == ColonnaLayout::PercorsoImmagine)
                leggiImmagine(e.indice, testoDi(*v, {}));
            else if (impostaValore(m_layout, posto, c, *v) == EsitoValore::NonValido)
                avvisa(
                    posto,
                    u"Riga %1, %2: il valore della colonna %3 non è valido e non è stato letto."_s.arg(posto + 1).arg(
                        descrizione(e), nomeColonna(c)));
        }
        if (e.tipo == TipoElemento::Image1 && !e.visibile)
            mostraCornice(e.indice);
    }

    // A column of the current row; nothing when the table has no such column. Any other failure of the engine ends the
    // reading, for the rows behind it would be lost at the next save.
    std::optional<Valore> valore(int posto, ColonnaLayout c) {
        try {
            return m_rs[nomeColonna(c)].Value();
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

    void avvisa(int posto, const QString &frase) {
        if (posto + 1 >= primaRigaConAvvisi)
            m_esito.avvisi.append(frase);
    }

    void leggiSfondo() {
        const auto v = valore(DisplayLayout::postoDi(TipoElemento::Label2), ColonnaLayout::PercorsoImmagine);
        if (!v)
            return;
        const QString percorso = testoDi(*v, {});
        if (!percorso.isEmpty() && !m_immagini.carica(percorso))
            return;
        m_layout.tela().immagine = percorso;
        if (!eNull(*v))
            m_layout.Label2() = percorso;
        if (!m_layout.eBase())
            return;
        if (const QString base = percorsoIn(m_cartella, sfondoBase); m_immagini.carica(base))
            m_layout.tela().immagine = base;
    }

    void leggiImmagine(int i, const QString &percorso) {
        m_layout.PercorsiDecorazione[static_cast<std::size_t>(i)] = percorso;
        LayoutElement &e = m_layout.elemento(TipoElemento::Image1, i);
        e.immagine = percorso;
        // A free slot shows its frame instead, so that its picture need not be decoded.
        e.immagineMancante = e.visibile && !percorso.isEmpty() && !m_immagini.carica(percorso);
        if (e.immagineMancante)
            m_esito.avvisi.append(
                u"%1: l'immagine %2 non si trova o non è leggibile. Il percorso resta memorizzato."_s.arg(
                    descrizione(e), percorso));
    }

    void mostraCornice(int i) {
        LayoutElement &e = m_layout.elemento(TipoElemento::Image1, i);
        e.immagine = percorsoIn(m_cartella, corniceLibera);
        e.immagineMancante = !m_immagini.carica(e.immagine);
        if (e.immagineMancante && !m_corniceSegnalata)
            m_esito.avvisi.append(
                u"La cornice delle decorazioni libere %1 non si trova o non è leggibile."_s.arg(e.immagine));
        m_corniceSegnalata = m_corniceSegnalata || e.immagineMancante;
    }

    Recordset &m_rs;
    DisplayLayout &m_layout;
    CaricatoreImmagini &m_immagini;
    const QString &m_cartella;
    EsitoLettura m_esito;
    QSet<ColonnaLayout> m_colonneMancanti;
    bool m_corniceSegnalata = false;
};

} // namespace

QString EsitoLettura::testo(int massimo) const {
    QStringList mostrati = avvisi.mid(0, massimo);
    if (avvisi.size() > massimo)
        mostrati.append(u"... e altri %1 avvisi."_s.arg(avvisi.size() - massimo));
    return mostrati.join(u'\n');
}

EsitoLettura leggiLayout(Recordset &rs, DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella) {
    return Lettore(rs, layout, immagini, cartella).leggi();
}

EsitoLettura CaricaLayout(DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella) {
    Data dato;
    return leggiLayout(apri(dato, cartella, layout.NomeTabella()), layout, immagini, cartella);
}

} // namespace zuvora
