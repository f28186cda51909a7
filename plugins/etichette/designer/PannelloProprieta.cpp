#include "etichette/designer/PannelloProprieta.h"

#include "etichette/designer/Campi.h"
#include "etichette/logic/Codici.h"

#include <QFontDatabase>
#include <QFormLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr Simbologia simbologie[] = {Simbologia::Code128, Simbologia::Code39, Simbologia::Ean13,
                                     Simbologia::Itf,     Simbologia::Qr,     Simbologia::DataMatrix};

QString nomeTipo(TipoOggetto tipo) {
    switch (tipo) {
    case TipoOggetto::Testo:
        return u"Testo"_s;
    case TipoOggetto::Codice:
        return u"Codice a barre"_s;
    case TipoOggetto::Immagine:
        return u"Immagine"_s;
    case TipoOggetto::Linea:
        return u"Linea"_s;
    case TipoOggetto::Cornice:
        return u"Cornice"_s;
    }
    return {};
}

// A value that all of the selected share, or nothing.
template <class F> auto comune(const Progetto &progetto, F valore) -> std::optional<decltype(valore(Oggetto()))> {
    std::optional<decltype(valore(Oggetto()))> uno;
    for (const int i : progetto.scelti()) {
        const auto questo = valore(*progetto.oggetti()[i]);
        if (uno && *uno != questo)
            return std::nullopt;
        uno = questo;
    }
    return uno;
}

} // namespace

PannelloProprieta::PannelloProprieta(Progetto &progetto, QWidget *padre) : QWidget(padre), m_progetto(progetto) {
    auto *fuori = new QVBoxLayout(this);
    fuori->setContentsMargins(0, 0, 0, 0);
    auto *scorre = new QScrollArea(this);
    scorre->setWidgetResizable(true);
    scorre->setFrameShape(QFrame::NoFrame);
    scorre->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scorre->setFocusPolicy(Qt::NoFocus);
    auto *dentro = new QWidget(scorre);
    auto *colonna = new QVBoxLayout(dentro);
    auto *righe = new QFormLayout;
    m_righe = righe;
    m_titolo = new QLabel(dentro);
    m_aiuto = new QLabel(dentro);
    m_aiuto->setWordWrap(true);
    m_aiuto->setObjectName(u"Impedimento"_s);
    // A label that wraps stands apart: Qt's form layout is at fault where one is in it with hidden rows.
    colonna->addWidget(m_titolo);
    colonna->addWidget(m_aiuto);
    colonna->addLayout(righe);
    colonna->addStretch(1);
    disponiPosto(*righe);
    disponiTesto(*righe);
    disponiDisegno(*righe);
    scorre->setWidget(dentro);
    fuori->addWidget(scorre);
    connect(&progetto, &Progetto::cambiato, this, &PannelloProprieta::mostra);
    connect(&progetto, &Progetto::sceltiCambiati, this, &PannelloProprieta::mostra);
    for (auto *campo : findChildren<QWidget *>())
        campo->installEventFilter(this);
    mostra();
}

void PannelloProprieta::aggiungi(QFormLayout &righe, const QString &etichetta, QWidget *campo,
                                 const QList<TipoOggetto> &tipi) {
    if (etichetta.isEmpty())
        righe.addRow(campo);
    else
        righe.addRow(etichetta, campo);
    if (campo->accessibleName().isEmpty())
        campo->setAccessibleName(QString(etichetta).remove(u'&').remove(u':'));
    m_campi << Riga{campo, tipi, campo->toolTip()};
}

QComboBox *PannelloProprieta::scelta(const char *nome, const QString &descrizione, const QStringList &voci) {
    auto *box = new QComboBox(this);
    box->setObjectName(QString::fromLatin1(nome));
    box->setAccessibleName(descrizione);
    box->addItems(voci);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return box;
}

QCheckBox *PannelloProprieta::casella(const QString &testo, const char *nome, bool StileTesto::*membro) {
    auto *box = new QCheckBox(testo, this);
    box->setObjectName(QString::fromLatin1(nome));
    m_stili << std::pair(box, membro);
    connect(box, &QCheckBox::clicked, this, [this, testo, membro](bool acceso) {
        cambia(QString(testo).remove(u'&'), [=](Oggetto &o) { o.stile.*membro = acceso; });
    });
    return box;
}

void PannelloProprieta::misura(CampoMisura *campo, void (*azione)(QRect &, int)) {
    connect(campo, &CampoMisura::applicato, this,
            [this, azione](int decimi) { cambia(u"Posto e misura"_s, [=](Oggetto &o) { azione(o.area, decimi); }); });
}

void PannelloProprieta::disponiPosto(QFormLayout &righe) {
    m_x = new CampoMisura("ValoreX", u"Distanza dal bordo sinistro della carta"_s, this);
    m_y = new CampoMisura("ValoreY", u"Distanza dal bordo alto della carta"_s, this);
    m_larghezza = new CampoMisura("ValoreLarghezza", u"Larghezza"_s, this);
    m_altezza = new CampoMisura("ValoreAltezza", u"Altezza"_s, this);
    misura(m_x, [](QRect &area, int d) { area.moveLeft(d); });
    misura(m_y, [](QRect &area, int d) { area.moveTop(d); });
    misura(m_larghezza, [](QRect &area, int d) { area.setWidth(std::max(0, d)); });
    misura(m_altezza, [](QRect &area, int d) { area.setHeight(std::max(0, d)); });
    aggiungi(righe, u"&X (mm):"_s, m_x);
    aggiungi(righe, u"&Y (mm):"_s, m_y);
    aggiungi(righe, u"&Larghezza (mm):"_s, m_larghezza);
    aggiungi(righe, u"Al&tezza (mm):"_s, m_altezza);
    m_rotazione = scelta("ValoreRotazione", u"Rotazione"_s,
                         {u"Diritto"_s, u"90° a destra"_s, u"Capovolto"_s, u"90° a sinistra"_s});
    connect(m_rotazione, &QComboBox::activated, this,
            [this](int i) { cambia(u"Rotazione"_s, [=](Oggetto &o) { o.rotazione = i * 90; }); });
    aggiungi(righe, u"&Rotazione:"_s, m_rotazione, {TipoOggetto::Testo, TipoOggetto::Codice, TipoOggetto::Immagine});
}

void PannelloProprieta::disponiTesto(QFormLayout &righe) {
    const QList<TipoOggetto> testo{TipoOggetto::Testo};
    const QList<TipoOggetto> codice{TipoOggetto::Codice};
    m_testo = new CampoTesto("ValoreTesto", u"Contenuto"_s, this);
    m_testo->setFixedHeight(66);
    connect(m_testo, &CampoTesto::applicato, this,
            [this](const QString &t) { cambia(u"Contenuto"_s, [=](Oggetto &o) { o.testo = t; }); });
    aggiungi(righe, u"&Contenuto:"_s, m_testo, {TipoOggetto::Testo, TipoOggetto::Codice});
    m_font = scelta("ValoreFont", u"Carattere"_s, QFontDatabase::families());
    connect(m_font, &QComboBox::textActivated, this,
            [this](const QString &f) { cambia(u"Carattere"_s, [=](Oggetto &o) { o.stile.famiglia = f; }); });
    aggiungi(righe, u"Caratte&re:"_s, m_font, testo);
    m_punti = new QDoubleSpinBox(this);
    m_punti->setObjectName(u"ValorePunti"_s);
    m_punti->setRange(1, 999);
    m_punti->setDecimals(1);
    m_punti->setKeyboardTracking(false);
    connect(m_punti, &QDoubleSpinBox::valueChanged, this,
            [this](double p) { cambia(u"Dimensione"_s, [=](Oggetto &o) { o.stile.punti = p; }); });
    aggiungi(righe, u"&Punti:"_s, m_punti, testo);
    const QStringList lati = {u"a sinistra"_s, u"al centro"_s, u"a destra"_s};
    m_orizzontale = scelta("ValoreOrizzontale", u"Allineamento orizzontale"_s, lati);
    connect(m_orizzontale, &QComboBox::activated, this,
            [this](int i) { cambia(u"Allineamento"_s, [=](Oggetto &o) { o.stile.orizzontale = Lato(i); }); });
    aggiungi(righe, u"&Orizzontale:"_s, m_orizzontale, testo);
    m_verticale = scelta("ValoreVerticale", u"Allineamento verticale"_s, {u"in alto"_s, u"al centro"_s, u"in basso"_s});
    connect(m_verticale, &QComboBox::activated, this,
            [this](int i) { cambia(u"Allineamento"_s, [=](Oggetto &o) { o.stile.verticale = Lato(i); }); });
    aggiungi(righe, u"&Verticale:"_s, m_verticale, testo);
    aggiungi(righe, {}, casella(u"&Grassetto"_s, "Grassetto", &StileTesto::grassetto), testo);
    aggiungi(righe, {}, casella(u"Cors&ivo"_s, "Corsivo", &StileTesto::corsivo), testo);
    aggiungi(righe, {}, casella(u"&Sottolineato"_s, "Sottolineato", &StileTesto::sottolineato), testo);
    aggiungi(righe, {}, casella(u"Va a capo"_s, "ACapo", &StileTesto::aCapo), testo);
    aggiungi(righe, {}, casella(u"Rimpicciolisce per starci"_s, "Riduci", &StileTesto::riduci), testo);
    aggiungi(righe, {}, casella(u"Cresce con il testo"_s, "Cresce", &StileTesto::cresce), testo);
    QStringList nomi;
    for (const Simbologia s : simbologie)
        nomi << nomeSimbologia(s);
    m_codice = scelta("ValoreCodice", u"Tipo di codice"_s, nomi);
    connect(m_codice, &QComboBox::activated, this,
            [this](int i) { cambia(u"Tipo di codice"_s, [=](Oggetto &o) { o.simbologia = simbologie[i]; }); });
    aggiungi(righe, u"Tipo di co&dice:"_s, m_codice, codice);
    m_leggibile = new QCheckBox(u"Contenuto scritto sotto"_s, this);
    m_leggibile->setObjectName(u"Leggibile"_s);
    connect(m_leggibile, &QCheckBox::clicked, this,
            [this](bool s) { cambia(u"Contenuto sotto il codice"_s, [=](Oggetto &o) { o.leggibile = s; }); });
    aggiungi(righe, {}, m_leggibile, codice);
}

void PannelloProprieta::disponiDisegno(QFormLayout &righe) {
    const QList<TipoOggetto> immagine{TipoOggetto::Immagine};
    const QList<TipoOggetto> cornice{TipoOggetto::Cornice};
    m_immagine = new QPushButton(u"Scegli immag&ine..."_s, this);
    m_immagine->setObjectName(u"ScegliImmagine"_s);
    connect(m_immagine, &QPushButton::clicked, this, &PannelloProprieta::immagineChiesta);
    aggiungi(righe, {}, m_immagine, immagine);
    m_riduzione = scelta("ValoreColori", u"Stampa dei colori"_s,
                         {u"com'è"_s, u"bianco e nero netto"_s, u"bianco e nero a retino"_s});
    connect(m_riduzione, &QComboBox::activated, this,
            [this](int i) { cambia(u"Bianco e nero"_s, [=](Oggetto &o) { o.riduzione = RiduzioneColori(i); }); });
    aggiungi(righe, u"&Stampa:"_s, m_riduzione, immagine);
    m_soglia = new QSpinBox(this);
    m_soglia->setObjectName(u"ValoreSoglia"_s);
    m_soglia->setRange(0, 255);
    m_soglia->setKeyboardTracking(false);
    connect(m_soglia, &QSpinBox::valueChanged, this,
            [this](int s) { cambia(u"Soglia del nero"_s, [=](Oggetto &o) { o.soglia = s; }); });
    aggiungi(righe, u"Soglia del &nero:"_s, m_soglia, immagine);
    m_spessore = new CampoMisura("ValoreSpessore", u"Spessore del tratto"_s, this);
    connect(m_spessore, &CampoMisura::applicato, this,
            [this](int d) { cambia(u"Spessore"_s, [=](Oggetto &o) { o.spessore = std::clamp(d, 1, 500); }); });
    aggiungi(righe, u"&Spessore (mm):"_s, m_spessore, {TipoOggetto::Linea, TipoOggetto::Cornice});
    m_raggio = new CampoMisura("ValoreRaggio", u"Raggio degli angoli"_s, this);
    connect(m_raggio, &CampoMisura::applicato, this,
            [this](int d) { cambia(u"Angoli"_s, [=](Oggetto &o) { o.raggio = std::clamp(d, 0, 5000); }); });
    aggiungi(righe, u"Ra&ggio angoli (mm):"_s, m_raggio, cornice);
    m_pieno = new QCheckBox(u"Piena di nero"_s, this);
    m_pieno->setObjectName(u"Pieno"_s);
    connect(m_pieno, &QCheckBox::clicked, this,
            [this](bool s) { cambia(u"Riempimento"_s, [=](Oggetto &o) { o.pieno = s; }); });
    aggiungi(righe, {}, m_pieno, cornice);
    m_condizione = scelta("ValoreCondizione", u"Variabile da cui dipende la stampa"_s, {});
    m_seVuota = scelta("ValoreSeVuota", u"Condizione di stampa"_s, {u"ha un contenuto"_s, u"è vuota"_s});
    const auto condizione = [this] {
        const Condizione c{m_condizione->currentIndex() <= 0 ? QString() : m_condizione->currentText(),
                           m_seVuota->currentIndex() == 1};
        cambia(u"Condizione"_s, [=](Oggetto &o) { o.condizione = c; });
    };
    connect(m_condizione, &QComboBox::activated, this, condizione);
    connect(m_seVuota, &QComboBox::activated, this, condizione);
    aggiungi(righe, u"Stampa s&e:"_s, m_condizione);
    aggiungi(righe, {}, m_seVuota);
    m_bloccato = new QCheckBox(u"&Bloccato"_s, this);
    m_bloccato->setObjectName(u"Bloccato"_s);
    connect(m_bloccato, &QCheckBox::clicked, this, [this](bool b) { m_progetto.blocca(b); });
    aggiungi(righe, {}, m_bloccato);
}

void PannelloProprieta::setVariabili(const QStringList &nomi) {
    m_condizione->clear();
    m_condizione->addItem(u"(sempre)"_s);
    m_condizione->addItems(nomi);
    mostra();
}

void PannelloProprieta::modificaContenuto() {
    m_testo->moveCursor(QTextCursor::End); // to go on where the text ends
    for (QWidget *campo : std::initializer_list<QWidget *>{m_testo, m_immagine, m_spessore})
        if (!campo->isHidden() && campo->isEnabled()) {
            campo->setFocus(Qt::ShortcutFocusReason);
            return;
        }
}

void PannelloProprieta::mostraPosto() {
    m_x->setDecimi(comune(m_progetto, [](const Oggetto &o) { return o.area.x(); }));
    m_y->setDecimi(comune(m_progetto, [](const Oggetto &o) { return o.area.y(); }));
    m_larghezza->setDecimi(comune(m_progetto, [](const Oggetto &o) { return o.area.width(); }));
    m_altezza->setDecimi(comune(m_progetto, [](const Oggetto &o) { return o.area.height(); }));
    m_spessore->setDecimi(comune(m_progetto, [](const Oggetto &o) { return o.spessore; }));
    m_raggio->setDecimi(comune(m_progetto, [](const Oggetto &o) { return o.raggio; }));
}

// Of several objects the last one stands for all; what is changed is changed in each.
void PannelloProprieta::mostraUno(const Oggetto &o) {
    m_rotazione->setCurrentIndex(o.rotazione / 90);
    if (m_font->findText(o.stile.famiglia) < 0)
        m_font->addItem(o.stile.famiglia);
    m_font->setCurrentText(o.stile.famiglia);
    m_punti->setValue(o.stile.punti);
    m_orizzontale->setCurrentIndex(int(o.stile.orizzontale));
    m_verticale->setCurrentIndex(int(o.stile.verticale));
    for (const auto &[box, membro] : m_stili)
        box->setChecked(o.stile.*membro);
    m_codice->setCurrentIndex(int(std::find(std::begin(simbologie), std::end(simbologie), o.simbologia) - simbologie));
    m_leggibile->setChecked(o.leggibile);
    m_riduzione->setCurrentIndex(int(o.riduzione));
    m_soglia->setValue(o.soglia);
    m_pieno->setChecked(o.pieno);
    if (!o.condizione.variabile.isEmpty() && m_condizione->findText(o.condizione.variabile) < 0)
        m_condizione->addItem(o.condizione.variabile);
    m_condizione->setCurrentIndex(o.condizione.variabile.isEmpty() ? 0
                                                                   : m_condizione->findText(o.condizione.variabile));
    m_seVuota->setCurrentIndex(o.condizione.seVuota ? 1 : 0);
    m_bloccato->setChecked(o.bloccato);
}

// A box in which nothing is being typed leaves the keys of undo and redo to the ticket.
bool PannelloProprieta::eventFilter(QObject *o, QEvent *e) {
    if (e->type() == QEvent::ShortcutOverride) {
        const auto *tasto = static_cast<QKeyEvent *>(e);
        const auto *testo = qobject_cast<QPlainTextEdit *>(o);
        const auto *riga =
            qobject_cast<QAbstractSpinBox *>(o) != nullptr ? o->findChild<QLineEdit *>() : qobject_cast<QLineEdit *>(o);
        const bool scritto =
            (testo != nullptr && testo->document()->isModified()) || (riga != nullptr && riga->isModified());
        if (!scritto && (tasto->matches(QKeySequence::Undo) || tasto->matches(QKeySequence::Redo))) {
            e->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(o, e);
}

bool PannelloProprieta::sempre(const QWidget *campo) const {
    return campo == m_x || campo == m_y || campo == m_larghezza || campo == m_altezza || campo == m_testo;
}

void PannelloProprieta::abilita(const Riga &riga, const QString &impedimento) {
    riga.campo->setEnabled(impedimento.isEmpty());
    riga.campo->setToolTip(impedimento.isEmpty() ? riga.aiuto : impedimento);
    riga.campo->setAccessibleDescription(impedimento);
}

void PannelloProprieta::mostra() {
    m_mostro = true;
    const QList<int> &scelti = m_progetto.scelti();
    const bool nessuno = scelti.isEmpty();
    const auto tipo = comune(m_progetto, [](const Oggetto &o) { return o.tipo; });
    const bool fermi = comune(m_progetto, [](const Oggetto &o) { return o.bloccato; }).value_or(false);
    const QString impedimento = nessuno ? u"Clic su un oggetto per sceglierlo (sul foglio anche con la barra "
                                          u"spaziatrice), Maiusc+clic per sceglierne altri; una variabile si trascina "
                                          "dall'elenco sul foglio."_s
                                : fermi ? u"Bloccato: per cambiarlo togliere «Bloccato»."_s
                                        : QString();
    m_titolo->setText(nessuno              ? u"Nessun oggetto scelto"_s
                      : scelti.size() == 1 ? nomeTipo(*tipo)
                                           : u"%1 oggetti scelti"_s.arg(scelti.size()));
    m_aiuto->setText(impedimento);
    m_aiuto->setVisible(!impedimento.isEmpty());
    for (const Riga &riga : m_campi) {
        const bool suo = !nessuno && (riga.tipi.isEmpty() || (tipo && riga.tipi.contains(*tipo)));
        const bool visibile = suo || sempre(riga.campo);
        riga.campo->setVisible(visibile);
        if (QWidget *etichetta = m_righe->labelForField(riga.campo))
            etichetta->setVisible(visibile);
        if (riga.campo != m_bloccato)
            abilita(riga, nessuno ? u"Nessun oggetto scelto."_s
                          : fermi ? impedimento
                          : suo   ? QString()
                                  : u"Solo testi e codici hanno un contenuto."_s);
    }
    mostraPosto();
    m_testo->mostra(tipo == TipoOggetto::Testo || tipo == TipoOggetto::Codice
                        ? m_progetto.oggetti()[scelti.last()]->testo
                        : QString());
    if (!nessuno) {
        mostraUno(*m_progetto.oggetti()[scelti.last()]);
        m_seVuota->setVisible(m_condizione->currentIndex() > 0);
    }
    m_mostro = false;
}

} // namespace zuvora
