#include "etichette/designer/EtichetteQt.h"

#include "etichette/biglietto/Record.h"
#include "etichette/biglietto/Stampante.h"
#include "etichette/designer/DesignerEtichetta.h"
#include "etichette/logic/Bozza.h"
#include "etichette/logic/FileEtichetta.h"
#include "shell/host/Dialoghi.h"
#include "shell/logic/Domanda.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int riuscito = 0;
constexpr int fallito = -1;
constexpr int sicuroSi = 0;
constexpr int sicuroNo = 1;

QString stampaProva(const QString &stampante, const Etichetta &e, const Valori &valori) {
    return stampa(stampante, e, valori).motivo;
}

std::optional<Valori> recordDi(const QString &cartella, int n) {
    const RecordLetto letto = leggiRecord(cartella, n);
    return letto.motivo.isEmpty() ? std::optional(letto.valori) : std::nullopt;
}

// What lies in the kiosk's folder when the designer opens.
struct Trovato {
    std::optional<EtichettaLetta> biglietto; // nothing where there is no file
    std::optional<Etichetta> bozza;
};

Trovato cerca(const QString &file) {
    Trovato trovato;
    if (QFileInfo::exists(file) || QFileInfo(file).isSymLink())
        trovato.biglietto = leggiEtichetta(file);
    trovato.bozza = Bozza(file).lasciata();
    return trovato;
}

} // namespace

void EtichetteQt::LlDefineVariableStart() {
    m_variabili.clear();
}

int EtichetteQt::LlDefineVariableExt(const QString &nome, const QString &contenuto, TipoEtichetta tipo) {
    m_variabili << variabileDaContenuto(nome, contenuto, tipo);
    return riuscito;
}

int EtichetteQt::LlDefineLayout(QWidget *finestra, const QString &titolo, int /*tipoProgetto*/, const QString &file) {
    try {
        return disegna(finestra, titolo, file);
    } catch (const std::exception &e) {
        m_dialoghi.messaggio(finestra, Dialoghi::Icona::Critica, titoloMessaggi(),
                             u"Il biglietto non può essere aperto. (%1)"_s.arg(QString::fromUtf8(e.what())));
        return fallito;
    }
}

// `sicuro`: the answer that loses nothing, and the one of Enter and Esc.
bool EtichetteQt::conferma(QWidget *finestra, const QString &testo, int sicuro) {
    return m_dialoghi.scegli(finestra, {titoloMessaggi(), testo, {u"&Sì"_s, u"&No"_s}, sicuro, sicuro}) == 0;
}

int EtichetteQt::disegna(QWidget *finestra, const QString &titolo, const QString &file) {
    const auto trovato = chiediEAspetta<Trovato>([file] { return cerca(file); }, attesaCartella);
    if (!trovato) {
        m_dialoghi.messaggio(
            finestra, Dialoghi::Icona::Critica, titoloMessaggi(),
            u"La cartella del totem non risponde: il biglietto non può essere aperto.\n%1"_s.arg(file));
        return fallito;
    }
    Etichetta etichetta = modelliPronti().first().etichetta;
    if (const auto &letta = trovato->biglietto; letta && letta->etichetta)
        etichetta = *letta->etichetta;
    else if (letta) {
        // What can't be read is somebody's work: it is replaced only when the user says so, and then at a save.
        if (!conferma(finestra,
                      u"%1 non può essere aperto.\n%2\n\nDisegnare un biglietto nuovo al suo posto ? "
                      "Il file resta com'è finché il nuovo non viene salvato."_s.arg(file, letta->motivo),
                      sicuroNo))
            return fallito;
    }
    // Without a record, a variable shows its own name.
    const bool vuoti =
        std::all_of(m_variabili.begin(), m_variabili.end(), [](const Variabile &v) { return v.testo.isEmpty(); });
    QList<Variabile> esempio = m_variabili;
    if (vuoti)
        for (Variabile &v : esempio)
            v.testo = v.nome;
    DesignerEtichetta::Mondo mondo{m_dialoghi, stampanti, stampaProva,
                                   [cartella = QFileInfo(file).path()](int n) { return recordDi(cartella, n); }};
    DesignerEtichetta designer(etichetta, Valori(esempio), titolo, file, std::move(mondo), finestra);
    if (trovato->bozza) {
        if (conferma(finestra,
                     u"L'ultima volta il biglietto non è stato chiuso in ordine.\nRiprendere le modifiche "
                     "che non erano state salvate ?"_s,
                     sicuroSi))
            designer.recupera(*trovato->bozza);
        else
            affidaEAspetta([bozza = Bozza(file)] { bozza.togli(); });
    }
    designer.exec();
    return riuscito;
}

} // namespace zuvora
