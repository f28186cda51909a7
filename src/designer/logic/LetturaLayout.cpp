#include "designer/logic/LetturaLayout.h"

#include "designer/logic/Righe.h"
#include "shell/logic/Percorsi.h"
#include "shell/store/Data.h"
#include "shell/store/EngineError.h"
#include "shell/store/NomiFile.h"

#include <QSet>
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int primaRigaConAvvisi = 33;

class Lettore {
public:
    Lettore(Recordset &rs, DisplayLayout &layout, CaricatoreImmagini &immagini, const QString &cartella)
        : m_rs(rs), m_layout(layout), m_immagini(immagini), m_cartella(cartella) {
        m_layout.setCornice(percorsoIn(cartella, nomi::corniceLibera));
    }

    EsitoLettura leggi() {
        if (m_rs.RecordCount() > 0)
            m_rs.MoveFirst();
        for (int posto = 0; posto < righeLayout && !m_rs.Eof(); ++posto) {
            leggiRiga(posto);
            ++m_esito.righe;
            m_rs.MoveNext();
        }
        risolviImmagini();
        ordinaAvvisi();
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
                leggiImmagine(posto, testoDi(*v, {}));
            else if (impostaValore(m_layout, posto, c, *v) == EsitoValore::NonValido)
                avvisa(
                    posto,
                    u"Riga %1, %2: il valore della colonna %3 non è valido e non è stato letto."_s.arg(posto + 1).arg(
                        e.nomeParlato(), nomeColonna(c)));
        }
        if (e.tipo == TipoElemento::Image1)
            chiediImmagine(posto);
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
            m_avvisi.emplace_back(posto, frase);
    }

    void ordinaAvvisi() {
        std::ranges::stable_sort(m_avvisi, {}, &Avviso::first);
        for (const Avviso &avviso : m_avvisi)
            m_esito.avvisi.append(avviso.second);
    }

    // Row 32. Whether its picture can be loaded is asked once all rows are read.
    void leggiSfondo() {
        m_sfondo = valore(DisplayLayout::postoDi(TipoElemento::Label2), ColonnaLayout::PercorsoImmagine);
        if (!m_sfondo)
            return;
        m_immagini.prepara(testoDi(*m_sfondo, {}));
        if (m_layout.eBase())
            m_immagini.prepara(percorsoIn(m_cartella, nomi::sfondoBase));
    }

    void leggiImmagine(int posto, const QString &percorso) {
        m_layout[posto].immagine = percorso;
        m_layout[posto].cornice = false;
    }

    // A free slot shows its frame, so that its own picture need not be decoded.
    void chiediImmagine(int posto) {
        LayoutElement &e = m_layout[posto];
        e.cornice = e.cornice || !e.visibile;
        m_immagini.prepara(m_layout.immagineMostrata(e));
        m_conImmagine.push_back(posto);
    }

    void risolviImmagini() {
        if (m_sfondo)
            risolviSfondo(*m_sfondo);
        for (const int posto : m_conImmagine)
            risolviDecorazione(posto);
    }

    void risolviSfondo(const Valore &v) {
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

    void risolviDecorazione(int posto) {
        LayoutElement &e = m_layout[posto];
        const QString &percorso = m_layout.immagineMostrata(e);
        e.immagineMancante = !percorso.isEmpty() && !m_immagini.carica(percorso);
        if (!e.immagineMancante || (e.cornice && std::exchange(m_corniceSegnalata, true)))
            return;
        avvisa(posto, e.cornice
                          ? u"La cornice delle decorazioni libere %1 non si trova o non è leggibile."_s.arg(
                                accorciato(percorso))
                          : u"%1: l'immagine %2 non si trova o non è leggibile. Il percorso resta memorizzato."_s.arg(
                                e.nomeParlato(), accorciato(percorso)));
    }

    using Avviso = std::pair<int, QString>; // row it belongs to

    Recordset &m_rs;
    DisplayLayout &m_layout;
    CaricatoreImmagini &m_immagini;
    const QString &m_cartella;
    EsitoLettura m_esito;
    QSet<ColonnaLayout> m_colonneMancanti;
    std::optional<Valore> m_sfondo;
    std::vector<int> m_conImmagine; // decorations, by row
    std::vector<Avviso> m_avvisi;
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
    dato.limite = righeLayout;
    return leggiLayout(apri(dato, cartella, layout.NomeTabella()), layout, immagini, cartella);
}

} // namespace zuvora
