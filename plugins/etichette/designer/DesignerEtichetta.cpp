#include "etichette/designer/DesignerEtichetta.h"

#include "etichette/biglietto/Uscite.h"
#include "etichette/designer/Finestre.h"
#include "etichette/designer/Foglio.h"
#include "etichette/designer/PannelloProprieta.h"
#include "etichette/logic/FileEtichetta.h"
#include "shell/immagini/LetturaImmagine.h"
#include "shell/logic/Domanda.h"
#include "shell/logic/FileAtomico.h"

#include <QApplication>
#include <QBoxLayout>
#include <QBuffer>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QScreen>
#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr QSize latoImmagine(1600, 1600);       // points; a roll of 80 mm has 640 across
constexpr qint64 immagineIntatta = 1024 * 1024; // bytes
constexpr int bozzaDopo = 2000;                 // milliseconds
constexpr int avvisiDopo = 150;
const QString filtroImmagini = u"Immagini|*.png;*.jpg;*.jpeg;*.bmp;*.gif;*.webp;*.svg"_s;
const QString tipoAppunti = u"application/x-zuvora-biglietto"_s;
constexpr std::chrono::seconds attesaImmagine{20};

struct ImmaginePresa {
    QByteArray contenuto;
    QString motivo; // why there is none
};

// The picture goes into the ticket: its own file when that is small, else what a ticket printer can show of it.
ImmaginePresa prendiImmagine(const QString &percorso) {
    const ImmagineLetta letta = leggi(percorso, latoImmagine);
    if (letta.immagine.isNull())
        return {{}, letta.motivo};
    const QSize misura = misuraImmagine(percorso);
    const bool piccola = misura.isValid() && misura == misura.boundedTo(latoImmagine);
    if (FileLetto file = leggiFile(percorso, immagineIntatta); piccola && file.motivo.isEmpty())
        return {file.contenuto, {}};
    QByteArray ridotta;
    QBuffer buffer(&ridotta);
    buffer.open(QIODevice::WriteOnly);
    if (!letta.immagine.save(&buffer, "PNG") || ridotta.size() > immagineMassima)
        return {{}, u"Anche ridotta è troppo grande per un biglietto."_s};
    return {ridotta, {}};
}

// What is dragged out of it is the variable's name.
class ElencoVariabili : public QListWidget {
public:
    using QListWidget::QListWidget;

protected:
    QStringList mimeTypes() const override { return {u"text/plain"_s}; }
    QMimeData *mimeData(const QList<QListWidgetItem *> &voci) const override {
        auto *dati = new QMimeData;
        dati->setText(voci.isEmpty() ? QString() : voci.first()->text());
        return dati;
    }
};

} // namespace

DesignerEtichetta::DesignerEtichetta(const Etichetta &etichetta, const Valori &valori, const QString &titolo,
                                     const QString &file, Mondo mondo, QWidget *padre)
    : QDialog(padre, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
                         Qt::WindowCloseButtonHint),
      m_progetto(etichetta), m_primo(valori), m_valori(valori), m_titolo(titolo), m_file(file),
      m_mondo(std::move(mondo)), m_bozza(file) {
    setObjectName(u"DesignerEtichetta"_s);
    setWindowTitle(titolo);
    m_foglio = new Foglio(m_progetto, this);
    m_proprieta = new PannelloProprieta(m_progetto, this);
    m_proprieta->setFixedWidth(290);
    m_nota = new QLabel(this);
    m_nota->setObjectName(u"Nota"_s);
    auto *tutto = new QVBoxLayout(this);
    auto *prima = new QHBoxLayout;
    auto *seconda = new QHBoxLayout;
    auto *mezzo = new QHBoxLayout;
    auto *sinistra = new QVBoxLayout;
    for (QBoxLayout *riga : {static_cast<QBoxLayout *>(prima), static_cast<QBoxLayout *>(seconda)})
        riga->setSpacing(3);
    primaRiga(*prima);
    secondaRiga(*seconda);
    disponiElenco(*sinistra);
    mezzo->addLayout(sinistra);
    mezzo->addWidget(m_foglio, 1);
    mezzo->addWidget(m_proprieta);
    tutto->addLayout(prima);
    tutto->addLayout(seconda);
    tutto->addLayout(mezzo, 1);
    tutto->addWidget(m_nota);
    m_orologio.setSingleShot(true);
    m_orologio.setInterval(bozzaDopo);
    connect(&m_orologio, &QTimer::timeout, this, &DesignerEtichetta::scriviBozza);
    m_attesaAvvisi.setSingleShot(true);
    m_attesaAvvisi.setInterval(avvisiDopo);
    connect(&m_attesaAvvisi, &QTimer::timeout, this, &DesignerEtichetta::mostraAvvisi);
    connect(&m_progetto, &Progetto::cambiato, this, [this] {
        m_orologio.start();
        m_attesaAvvisi.start();
        mostraStato();
    });
    connect(&m_progetto.pila(), &QUndoStack::cleanChanged, this, &DesignerEtichetta::mostraStato);
    connect(m_foglio, &Foglio::modificaChiesta, m_proprieta, &PannelloProprieta::modificaContenuto);
    connect(m_foglio, &Foglio::variabileLasciata, this,
            [this](const QString &nome, const QPoint &posto) { aggiungiVariabile(nome, posto); });
    connect(m_proprieta, &PannelloProprieta::immagineChiesta, this, &DesignerEtichetta::scegliImmagine);
    m_foglio->setValori(valori);
    mostraStato();
    // with room for the frame and its title
    resize(QSize(1120, 720).boundedTo(screen()->availableSize() - QSize(16, 48)));
    m_foglio->setFocus();
}

DesignerEtichetta::~DesignerEtichetta() {
    disconnect(&m_progetto, nullptr, this, nullptr);
    disconnect(&m_progetto.pila(), nullptr, this, nullptr);
}

void DesignerEtichetta::showEvent(QShowEvent *e) {
    QDialog::showEvent(e);
    if (!e->spontaneous())
        m_foglio->adatta();
}

void DesignerEtichetta::disponiElenco(QBoxLayout &colonna) {
    auto *scritta = new QLabel(u"Varia&bili"_s, this);
    m_variabili = new ElencoVariabili(this);
    m_variabili->setObjectName(u"variabili"_s);
    m_variabili->setAccessibleName(u"Variabili"_s);
    m_variabili->setToolTip(u"Trascinare una variabile sul foglio, oppure doppio clic o Invio"_s);
    m_variabili->setDragEnabled(true);
    m_variabili->setFixedWidth(180);
    scritta->setBuddy(m_variabili);
    QStringList nomi;
    for (const Variabile &v : m_primo.tutte())
        nomi << v.nome;
    for (const Oggetto &o : m_progetto.etichetta().oggetti)
        for (const QString &nome : nomiIn(o.testo))
            if (!nomi.contains(nome, Qt::CaseInsensitive))
                nomi << nome;
    for (const QString &nome : nomi) {
        auto *voce = new QListWidgetItem(nome, m_variabili);
        const Variabile *v = m_primo.trova(nome);
        if (v == nullptr) { // kept, so that the ticket stays whole until somebody decides
            voce->setForeground(Qt::red);
            voce->setToolTip(u"Questa variabile non esiste più nei dati da stampare."_s);
        } else if (!v->testo.isEmpty()) {
            voce->setToolTip(u"Contenuto: "_s + v->testo.left(200));
        }
    }
    m_proprieta->setVariabili(nomi);
    connect(m_variabili, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *voce) { aggiungiVariabile(voce->text()); });
    colonna.addWidget(scritta);
    colonna.addWidget(m_variabili, 1);
}

void DesignerEtichetta::aggiungi(TipoOggetto tipo) {
    Oggetto o = nuovoOggetto(tipo, {});
    o.area.moveTopLeft(m_foglio->postoInVista(o.area.size()));
    m_progetto.aggiungi(o, u"Nuovo oggetto"_s);
    m_foglio->setFocus();
}

void DesignerEtichetta::aggiungiVariabile(const QString &nome, const std::optional<QPoint> &posto) {
    Oggetto o = nuovoOggetto(TipoOggetto::Testo, {});
    o.testo = u'{' + nome + u'}';
    o.area.moveTopLeft(posto ? *posto : m_foglio->postoInVista(o.area.size()));
    m_progetto.aggiungi(o, u"Nuova variabile"_s);
    m_foglio->setFocus();
}

std::optional<QByteArray> DesignerEtichetta::chiediImmagine() {
    const auto percorso = m_mondo.dialoghi.apriFile(this, {u"Scelta immagine"_s, filtroImmagini});
    if (!percorso)
        return std::nullopt;
    // A disk that doesn't answer must not hold the window up.
    const ImmaginePresa presa =
        chiediEAspetta<ImmaginePresa>([percorso = *percorso] { return prendiImmagine(percorso); }, attesaImmagine)
            .value_or(ImmaginePresa{{}, u"Il file non risponde."_s});
    if (presa.motivo.isEmpty())
        return presa.contenuto;
    avvisa(u"L'immagine non è stata presa. "_s + presa.motivo);
    return std::nullopt;
}

void DesignerEtichetta::aggiungiImmagine() {
    const auto file = chiediImmagine();
    if (!file)
        return;
    Oggetto o = nuovoOggetto(TipoOggetto::Immagine, {});
    o.immagine = *file;
    o.area.moveTopLeft(m_foglio->postoInVista(o.area.size()));
    m_progetto.aggiungi(o, u"Nuova immagine"_s);
    m_foglio->setFocus();
}

void DesignerEtichetta::scegliImmagine() {
    if (const auto file = chiediImmagine())
        m_progetto.cambia(u"Immagine"_s, [&](Oggetto &o) { o.immagine = *file; });
}

// Beside the window, which a folder that doesn't answer must not hold up. What was saved or left meanwhile goes again.
void DesignerEtichetta::scriviBozza() {
    if (m_bozzaInCorso)
        m_orologio.start(); // one at a time: the last must be the last
    if (m_bozzaInCorso || m_progetto.pila().isClean())
        return;
    m_bozzaInCorso = true;
    m_bozzaSuperata = std::make_shared<std::atomic<bool>>(false);
    chiedi<QString>(
        [bozza = m_bozza, etichetta = m_progetto.etichetta(), superata = m_bozzaSuperata] {
            QString motivo = scriviEtichetta(bozza.percorso(), etichetta);
            if (*superata)
                bozza.togli();
            return motivo;
        },
        *this,
        [this](const std::optional<QString> &motivo) {
            m_bozzaInCorso = false;
            if (motivo != QString() && !m_progetto.pila().isClean())
                di(u"La copia di sicurezza non è stata scritta. "_s + motivo.value_or(u"La cartella non risponde."_s));
        },
        attesaCartella);
}

void DesignerEtichetta::togliBozza() {
    if (m_bozzaSuperata)
        *m_bozzaSuperata = true;
    affidaEAspetta([bozza = m_bozza] { bozza.togli(); });
}

bool DesignerEtichetta::salvaIn(const QString &file) {
    const auto scrittura = chiediEAspetta<QString>(
        [file, etichetta = m_progetto.etichetta()] { return scriviEtichetta(file, etichetta); }, attesaCartella);
    const QString motivo =
        scrittura.value_or(u"La cartella non risponde: non si sa se il biglietto sia stato scritto."_s);
    if (motivo.isEmpty())
        return true;
    avvisa(u"Il biglietto non è stato salvato in %1.\n%2\n\nQuello che è disegnato resta qui: si può "
           "salvare una copia altrove."_s.arg(file, motivo));
    return false;
}

bool DesignerEtichetta::salva() {
    if (!salvaIn(m_file))
        return false;
    m_progetto.pila().setClean();
    togliBozza();
    di(u"Biglietto salvato."_s);
    return true;
}

void DesignerEtichetta::salvaCopia() {
    const auto file = m_mondo.dialoghi.salvaFile(
        this, {u"Salva una copia"_s, u"Biglietti|*.lbl"_s, QFileInfo(m_file).path(), QFileInfo(m_file).fileName()});
    if (file && salvaIn(*file))
        di(u"Copia salvata: "_s + *file);
}

void DesignerEtichetta::esportaPdf() {
    const auto file = m_mondo.dialoghi.salvaFile(this, {u"Esporta in PDF"_s, u"PDF|*.pdf"_s, {}, u"Ticket.pdf"_s});
    if (!file)
        return;
    const EsitoStampa esito = scriviPdf(*file, m_progetto.etichetta(), m_valori);
    if (!esito.motivo.isEmpty())
        avvisa(u"Il PDF non è stato scritto. "_s + esito.motivo);
    else
        di(u"PDF scritto: "_s + *file);
}

void DesignerEtichetta::stampaProva() {
    const auto [nomi, motivo] = m_mondo.stampanti();
    if (nomi.isEmpty()) {
        const QString testo = motivo.isEmpty() ? u"Su questa macchina non c'è nessuna stampante."_s : motivo;
        if (m_mondo.dialoghi.scegli(
                this,
                {titoloMessaggi(), testo + u"\n\nEsportare il biglietto in PDF ?"_s, {u"&Sì"_s, u"&No"_s}, 0, 1}) == 0)
            esportaPdf();
        return;
    }
    const auto richiesta = chiediStampa(m_progetto.etichetta(), nomi, this);
    if (!richiesta)
        return;
    m_progetto.setScostamento(richiesta->stampante, richiesta->scostamento);
    m_progetto.setStampa(richiesta->stampa);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString rifiuto = m_mondo.stampa(richiesta->stampante, m_progetto.etichetta(), m_valori);
    QApplication::restoreOverrideCursor();
    if (rifiuto.isEmpty())
        di(u"Biglietto consegnato alla stampante %1."_s.arg(richiesta->stampante));
    else
        avvisa(rifiuto);
}

void DesignerEtichetta::avvisa(const QString &testo) {
    m_mondo.dialoghi.messaggio(this, Dialoghi::Icona::Informazione, titoloMessaggi(), testo);
}

void DesignerEtichetta::mostraRecord(int n) {
    m_valori = m_primo;
    if (n > 1) {
        const auto lettura =
            chiediEAspetta<std::optional<Valori>>([record = m_mondo.record, n] { return record(n); }, attesaCartella);
        const auto altri = lettura.value_or(std::nullopt);
        if (!altri) {
            di(lettura ? u"Il record %1 non c'è: si vedono i contenuti del primo."_s.arg(n)
                       : u"La cartella non risponde: si vedono i contenuti del primo record."_s);
            m_foglio->setValori(m_primo);
            return;
        }
        m_valori = *altri;
    }
    di({});
    m_foglio->setValori(m_valori);
}

void DesignerEtichetta::di(const QString &testo) {
    m_nota->setText(testo);
}

// The title tells the unsaved; the line below what will not print well.
void DesignerEtichetta::mostraStato() {
    setWindowTitle(m_progetto.pila().isClean() ? m_titolo : m_titolo + u" *"_s);
}

void DesignerEtichetta::mostraAvvisi() {
    if (m_progetto.pila().isClean())
        return;
    const QStringList avvisi = controlla(m_progetto.etichetta(), m_valori);
    di(avvisi.isEmpty()     ? QString()
       : avvisi.size() == 1 ? avvisi.first()
       : avvisi.size() == 2 ? avvisi.first() + u"  (e un altro avviso, con «Controlla»)"_s
                            : u"%1  (e altri %2 avvisi, con «Controlla»)"_s.arg(avvisi.first()).arg(avvisi.size() - 1));
}

void DesignerEtichetta::copia() {
    if (m_progetto.scelti().isEmpty())
        return;
    auto *dati = new QMimeData;
    dati->setData(tipoAppunti, m_progetto.copia());
    QApplication::clipboard()->setMimeData(dati);
}

void DesignerEtichetta::incolla() {
    if (!m_progetto.incolla(QApplication::clipboard()->mimeData()->data(tipoAppunti)))
        di(u"Negli appunti non ci sono oggetti di un biglietto."_s);
}

void DesignerEtichetta::recupera(const Etichetta &bozza) {
    m_progetto.sostituisci(bozza, u"Recupera"_s);
}

// Enter belongs to boxes and canvas, Esc to the frame: no button of the window takes them.
void DesignerEtichetta::keyPressEvent(QKeyEvent *e) {
    if (e->key() == Qt::Key_Escape)
        close();
    else
        e->ignore();
}

void DesignerEtichetta::closeEvent(QCloseEvent *e) {
    if (QWidget *campo = focusWidget(); campo != nullptr && campo != m_foglio)
        campo->clearFocus(); // applies what is being typed
    if (!m_progetto.pila().isClean()) {
        enum : int { Salva, NonSalvare, Annulla };
        const int risposta = m_mondo.dialoghi.scegli(this, {titoloMessaggi(),
                                                            u"Il biglietto è stato modificato. Salvarlo ?"_s,
                                                            {u"&Salva"_s, u"&Non salvare"_s, u"&Annulla"_s},
                                                            Salva,
                                                            Annulla});
        if (risposta == Annulla || (risposta == Salva && !salva())) {
            e->ignore();
            return;
        }
    }
    m_orologio.stop();
    togliBozza();
    e->accept();
    done(QDialog::Rejected);
}

} // namespace zuvora
