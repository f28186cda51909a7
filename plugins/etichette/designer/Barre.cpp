// The designer's two rows of buttons.
#include "etichette/designer/DesignerEtichetta.h"
#include "etichette/designer/Finestre.h"
#include "etichette/designer/Foglio.h"
#include "etichette/logic/Pittore.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

QToolButton *DesignerEtichetta::bottone(QBoxLayout &riga, const char *nome, const QString &testo, const QString &aiuto,
                                        std::function<void()> azione, const QKeySequence &tasti) {
    auto *b = new QToolButton(this);
    b->setObjectName(QString::fromLatin1(nome));
    b->setText(testo);
    b->setToolTip(tasti.isEmpty() ? aiuto : aiuto + u" ("_s + tasti.toString(QKeySequence::NativeText) + u')');
    b->setAccessibleName(QString(testo).remove(u'&'));
    b->setAccessibleDescription(aiuto);
    b->setToolButtonStyle(Qt::ToolButtonTextOnly);
    b->setFocusPolicy(Qt::TabFocus);
    if (!tasti.isEmpty())
        b->setShortcut(tasti);
    connect(b, &QToolButton::clicked, this, std::move(azione));
    riga.addWidget(b);
    return b;
}

void DesignerEtichetta::primaRiga(QBoxLayout &riga) {
    bottone(
        riga, "Salva", u"Salva"_s, u"Salva il biglietto"_s, [this] { salva(); }, QKeySequence::Save);
    bottone(riga, "SalvaCopia", u"Salva copia..."_s, u"Salva il biglietto anche in un altro file"_s,
            [this] { salvaCopia(); });
    auto *annulla = bottone(
        riga, "Annulla", u"Annulla"_s, u"Torna indietro di un passo"_s, [this] { m_progetto.pila().undo(); },
        QKeySequence::Undo);
    auto *ripristina = bottone(
        riga, "Ripristina", u"Ripristina"_s, u"Rifà il passo annullato"_s, [this] { m_progetto.pila().redo(); },
        QKeySequence(u"Ctrl+Y"_s));
    for (auto [b, puo, segnale] : {std::tuple(annulla, false, &QUndoStack::canUndoChanged),
                                   std::tuple(ripristina, false, &QUndoStack::canRedoChanged)}) {
        b->setEnabled(puo);
        connect(&m_progetto.pila(), segnale, b, &QWidget::setEnabled);
    }
    bottone(
        riga, "Anteprima", u"Anteprima"_s, u"Il biglietto come esce dalla stampante"_s,
        [this] { AnteprimaEtichetta(m_progetto.etichetta(), m_valori, this).exec(); }, QKeySequence(u"F5"_s));
    bottone(
        riga, "StampaProva", u"Stampa di prova..."_s, u"Stampa un biglietto e regola la posizione"_s,
        [this] { stampaProva(); }, QKeySequence::Print);
    bottone(riga, "EsportaPdf", u"Esporta PDF..."_s, u"Scrive il biglietto in un file PDF"_s, [this] { esportaPdf(); });
    bottone(riga, "Carta", u"Carta..."_s, u"Misure e margini della carta"_s, [this] {
        if (const auto carta = chiediCarta(m_progetto.carta(), this))
            m_progetto.setCarta(*carta);
    });
    bottone(riga, "Modelli", u"Biglietti pronti..."_s, u"Comincia da un biglietto già disegnato"_s, [this] {
        auto modello = chiediModello(this);
        if (!modello)
            return;
        const Etichetta prima = m_progetto.etichetta(); // what belongs to the printers stays
        modello->stampa = prima.stampa;
        modello->scostamenti = prima.scostamenti;
        modello->ignoti = prima.ignoti;
        m_progetto.sostituisci(*modello, u"Biglietto pronto"_s);
    });
    bottone(riga, "Controlla", u"Controlla"_s, u"Che cosa non verrà stampato come si vede"_s, [this] {
        const QStringList avvisi = controlla(m_progetto.etichetta(), m_valori);
        avvisa(avvisi.isEmpty() ? u"Nessun problema trovato."_s : avvisi.mid(0, 20).join(u'\n'));
    });
    riga.addStretch();
    auto *record = new QSpinBox(this);
    record->setObjectName(u"Record"_s);
    record->setPrefix(u"Record "_s);
    record->setRange(1, 999999);
    record->setKeyboardTracking(false);
    record->setAccessibleName(u"Record mostrato"_s);
    record->setToolTip(u"Il record di cui si vedono i contenuti"_s);
    connect(record, &QSpinBox::valueChanged, this, &DesignerEtichetta::mostraRecord);
    riga.addWidget(record);
}

void DesignerEtichetta::secondaRiga(QBoxLayout &riga) {
    const struct {
        const char *nome;
        QString testo;
        TipoOggetto tipo;
    } oggetti[] = {{"AggiungiTesto", u"+ Testo"_s, TipoOggetto::Testo},
                   {"AggiungiCodice", u"+ Codice"_s, TipoOggetto::Codice},
                   {"AggiungiLinea", u"+ Linea"_s, TipoOggetto::Linea},
                   {"AggiungiCornice", u"+ Cornice"_s, TipoOggetto::Cornice}};
    for (const auto &o : oggetti)
        bottone(riga, o.nome, o.testo, u"Mette un oggetto nuovo sul foglio"_s,
                [this, tipo = o.tipo] { aggiungi(tipo); });
    bottone(riga, "AggiungiImmagine", u"+ Immagine..."_s, u"Mette un'immagine sul foglio"_s,
            [this] { aggiungiImmagine(); });
    bottone(riga, "Elimina", u"Elimina"_s, u"Toglie gli oggetti scelti"_s, [this] { m_progetto.elimina(); });
    bottone(
        riga, "Duplica", u"Duplica"_s, u"Una copia accanto all'originale"_s, [this] { m_progetto.duplica(); },
        QKeySequence(u"Ctrl+D"_s));
    bottone(
        riga, "Copia", u"Copia"_s, u"Copia gli oggetti scelti"_s, [this] { copia(); }, QKeySequence::Copy);
    bottone(
        riga, "Incolla", u"Incolla"_s, u"Incolla gli oggetti copiati"_s, [this] { incolla(); }, QKeySequence::Paste);
    auto *allinea = bottone(riga, "Allinea", u"Allinea "_s, u"Allinea e distribuisce gli oggetti scelti"_s, [] {});
    menuAllinea(*allinea);
    bottone(riga, "PrimoPiano", u"Davanti"_s, u"Porta davanti a tutti"_s, [this] { m_progetto.inPrimoPiano(); });
    bottone(riga, "InFondo", u"Dietro"_s, u"Porta dietro a tutti"_s, [this] { m_progetto.inFondo(); });
    riga.addStretch();
    auto *griglia = new QCheckBox(u"Gri&glia"_s, this);
    griglia->setObjectName(u"Griglia"_s);
    griglia->setChecked(true);
    griglia->setToolTip(u"Griglia di 5 mm a cui gli oggetti si agganciano; Alt la sospende"_s);
    connect(griglia, &QCheckBox::toggled, this, [this](bool accesa) { m_foglio->setGriglia(accesa ? 50 : 0); });
    riga.addWidget(griglia);
    m_zoom = new QSpinBox(this);
    m_zoom->setObjectName(u"Zoom"_s);
    m_zoom->setAccessibleName(u"Ingrandimento"_s);
    m_zoom->setRange(25, 800);
    m_zoom->setSingleStep(25);
    m_zoom->setSuffix(u" %"_s);
    m_zoom->setKeyboardTracking(false);
    connect(m_zoom, &QSpinBox::valueChanged, m_foglio, &Foglio::setZoom);
    connect(m_foglio, &Foglio::zoomCambiato, m_zoom, &QSpinBox::setValue);
    riga.addWidget(m_zoom);
    bottone(
        riga, "Adatta", u"Adatta"_s, u"La carta riempie la vista"_s, [this] { m_foglio->adatta(); },
        QKeySequence(u"Ctrl+0"_s));
}

void DesignerEtichetta::menuAllinea(QToolButton &b) {
    auto *menu = new QMenu(&b);
    const struct {
        const char *nome;
        QString testo;
        Progetto::Bordo bordo;
    } bordi[] = {{"AllineaSinistra", u"A &sinistra"_s, Progetto::Bordo::Sinistra},
                 {"AllineaCentro", u"Al &centro"_s, Progetto::Bordo::CentroOrizzontale},
                 {"AllineaDestra", u"A &destra"_s, Progetto::Bordo::Destra},
                 {"AllineaAlto", u"In &alto"_s, Progetto::Bordo::Alto},
                 {"AllineaMezzo", u"A &metà altezza"_s, Progetto::Bordo::CentroVerticale},
                 {"AllineaBasso", u"In &basso"_s, Progetto::Bordo::Basso}};
    for (const auto &v : bordi)
        menu->addAction(v.testo, this, [this, bordo = v.bordo] { m_progetto.allinea(bordo); })
            ->setObjectName(QString::fromLatin1(v.nome));
    menu->addSeparator();
    menu->addAction(u"Distribuisci in &orizzontale"_s, this, [this] { m_progetto.distribuisci(Qt::Horizontal); });
    menu->addAction(u"Distribuisci in &verticale"_s, this, [this] { m_progetto.distribuisci(Qt::Vertical); });
    b.setMenu(menu);
    b.setPopupMode(QToolButton::InstantPopup);
}

} // namespace zuvora
