#include "etichette/designer/Finestre.h"

#include "etichette/designer/Campi.h"
#include "etichette/logic/Pittore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

// A small window with rows of fields above two buttons.
class Scheda : public QDialog {
public:
    Scheda(const char *nome, const QString &titolo, const QString &conferma, QWidget *padre) : QDialog(padre) {
        setObjectName(QString::fromLatin1(nome));
        setWindowTitle(titolo);
        auto *tutto = new QVBoxLayout(this);
        m_righe = new QFormLayout;
        tutto->addLayout(m_righe);
        auto *bottoni = new QDialogButtonBox(this);
        bottoni->addButton(conferma, QDialogButtonBox::AcceptRole)->setObjectName(u"Conferma"_s);
        bottoni->addButton(u"C&hiudi"_s, QDialogButtonBox::RejectRole)->setObjectName(u"Chiudi"_s);
        tutto->addStretch();
        tutto->addWidget(bottoni);
        connect(bottoni, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(bottoni, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }
    QFormLayout &righe() { return *m_righe; }
    template <class W> W *campo(const QString &etichetta, W *w, const char *nome) {
        w->setObjectName(QString::fromLatin1(nome));
        w->setAccessibleName(QString(etichetta).remove(u'&').remove(u':'));
        if (etichetta.isEmpty())
            m_righe->addRow(w);
        else
            m_righe->addRow(etichetta, w);
        if (m_righe->rowCount() == 1)
            w->setFocus(); // else a button would have it
        return w;
    }
    CampoMisura *misura(const QString &etichetta, const char *nome, int decimi) {
        auto *w = campo(etichetta, new CampoMisura(nome, QString(etichetta).remove(u'&').remove(u':'), this), nome);
        w->setDecimi(decimi);
        return w;
    }

private:
    QFormLayout *m_righe;
};

// The row of the paper in the list of formats; 0 for none of them. Margins and head are a matter of the printer.
int formatoDi(const QList<Formato> &formati, int larghezza, int altezza, bool cresce) {
    const auto trovato = std::find_if(formati.begin(), formati.end(), [&](const Formato &f) {
        return f.carta.larghezza == larghezza && f.carta.cresce == cresce && (cresce || f.carta.altezza == altezza);
    });
    return trovato == formati.end() ? 0 : static_cast<int>(trovato - formati.begin()) + 1;
}

int tra(const CampoMisura *campo, int minimo, int massimo, int altrimenti) {
    return std::clamp(campo->decimi().value_or(altrimenti), minimo, massimo);
}

} // namespace

std::optional<Carta> chiediCarta(const Carta &carta, QWidget *padre) {
    Scheda s("CartaEtichetta", u"Carta del biglietto"_s, u"&Applica"_s, padre);
    auto *formato = s.campo(u"&Formato:"_s, new QComboBox(&s), "Formato");
    formato->addItem(u"su misura"_s);
    const auto formati = formatiCarta();
    for (const Formato &f : formati)
        formato->addItem(f.nome);
    auto *larghezza = s.misura(u"&Larghezza (mm):"_s, "Larghezza", carta.larghezza);
    auto *altezza = s.misura(u"&Altezza (mm):"_s, "Altezza", carta.altezza);
    auto *cresce = s.campo({}, new QCheckBox(u"La lunghezza segue il contenuto"_s, &s), "LunghezzaSegue");
    CampoMisura *margini[] = {s.misura(u"Margine &sinistro (mm):"_s, "MargineSinistro", carta.margini.left()),
                              s.misura(u"Margine al&to (mm):"_s, "MargineAlto", carta.margini.top()),
                              s.misura(u"Margine &destro (mm):"_s, "MargineDestro", carta.margini.right()),
                              s.misura(u"Margine &basso (mm):"_s, "MargineBasso", carta.margini.bottom())};
    auto *dpi = s.campo(u"&Punti per pollice della testina:"_s, new QSpinBox(&s), "Dpi");
    dpi->setRange(72, 1200);
    const auto mostra = [&](const Carta &c) {
        larghezza->setDecimi(c.larghezza);
        altezza->setDecimi(c.altezza);
        cresce->setChecked(c.cresce);
        margini[0]->setDecimi(c.margini.left());
        margini[1]->setDecimi(c.margini.top());
        margini[2]->setDecimi(c.margini.right());
        margini[3]->setDecimi(c.margini.bottom());
        dpi->setValue(c.dpi);
    };
    mostra(carta);
    const auto riconosci = [&] {
        formato->setCurrentIndex(
            formatoDi(formati, larghezza->decimi().value_or(0), altezza->decimi().value_or(0), cresce->isChecked()));
    };
    riconosci();
    for (CampoMisura *campo : {larghezza, altezza})
        QObject::connect(campo, &CampoMisura::applicato, &s, riconosci);
    QObject::connect(cresce, &QCheckBox::clicked, &s, riconosci);
    QObject::connect(formato, &QComboBox::activated, &s, [&](int i) {
        if (i > 0)
            mostra(formati[i - 1].carta);
    });
    if (s.exec() != QDialog::Accepted)
        return std::nullopt;
    const auto margine = [&](int i) { return tra(margini[i], 0, 2000, 30); };
    return Carta{tra(larghezza, 100, 10000, carta.larghezza), tra(altezza, 100, 30000, carta.altezza),
                 cresce->isChecked(), QMargins(margine(0), margine(1), margine(2), margine(3)), dpi->value()};
}

std::optional<RichiestaStampa> chiediStampa(const Etichetta &e, const QStringList &stampanti, QWidget *padre) {
    Scheda s("StampaEtichetta", u"Stampa di prova"_s, u"&Stampa"_s, padre);
    auto *stampante = s.campo(u"S&tampante:"_s, new QComboBox(&s), "Stampante");
    stampante->addItems(stampanti);
    auto *x = s.misura(u"Sposta a &destra (mm):"_s, "ScostamentoX", 0);
    auto *y = s.misura(u"Sposta in &basso (mm):"_s, "ScostamentoY", 0);
    auto *copie = s.campo(u"&Copie di ogni biglietto:"_s, new QSpinBox(&s), "Copie");
    copie->setRange(1, 99);
    copie->setValue(e.stampa.copie);
    auto *scurezza = s.campo(u"S&curezza:"_s, new QComboBox(&s), "Scurezza");
    scurezza->addItems({u"come la stampante"_s, u"1 (chiara)"_s, u"2"_s, u"3"_s, u"4"_s, u"5 (scura)"_s});
    scurezza->setCurrentIndex(e.stampa.scurezza);
    auto *taglia = s.campo({}, new QCheckBox(u"Taglia dopo ogni biglietto"_s, &s), "Taglia");
    taglia->setChecked(e.stampa.taglia);
    auto *nota = new QLabel(u"Lo scostamento vale per questa stampante e si salva con il biglietto. Taglio e scurezza\n"
                            "valgono dove la stampante li offre."_s,
                            &s);
    s.righe().addRow(nota);
    const auto mostra = [&] {
        const QPoint scostamento = e.scostamenti.value(stampante->currentText());
        x->setDecimi(scostamento.x());
        y->setDecimi(scostamento.y());
    };
    QObject::connect(stampante, &QComboBox::currentTextChanged, &s, mostra);
    mostra();
    if (s.exec() != QDialog::Accepted)
        return std::nullopt;
    return RichiestaStampa{stampante->currentText(),
                           {tra(x, -1000, 1000, 0), tra(y, -1000, 1000, 0)},
                           {copie->value(), taglia->isChecked(), scurezza->currentIndex()}};
}

std::optional<Etichetta> chiediModello(QWidget *padre) {
    Scheda s("ModelloEtichetta", u"Biglietti pronti"_s, u"&Usa questo"_s, padre);
    auto *elenco = s.campo(u"&Modello:"_s, new QListWidget(&s), "Modelli");
    const auto modelli = modelliPronti();
    for (const ModelloPronto &m : modelli)
        elenco->addItem(m.nome);
    elenco->setCurrentRow(0);
    QObject::connect(elenco, &QListWidget::itemActivated, &s, &QDialog::accept);
    if (s.exec() != QDialog::Accepted || elenco->currentRow() < 0)
        return std::nullopt;
    return modelli[elenco->currentRow()].etichetta;
}

AnteprimaEtichetta::AnteprimaEtichetta(const Etichetta &e, const Valori &valori, QWidget *padre) : QDialog(padre) {
    setObjectName(u"AnteprimaEtichetta"_s);
    setWindowTitle(u"Anteprima di stampa"_s);
    const QSize carta = Pittore::misuraCarta(e, valori);
    const double scala = e.carta.dpi / decimiPerPollice;
    QImage immagine((QSizeF(carta) * scala).toSize().boundedTo(QSize(12000, 12000)), QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter p(&immagine);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    p.scale(scala, scala);
    Pittore pittore;
    pittore.disegna(p, e, valori, Pittore::Modo::Stampa);
    p.end();
    auto *tutto = new QVBoxLayout(this);
    auto *scorre = new QScrollArea(this);
    auto *foglio = new QLabel(scorre);
    foglio->setPixmap(QPixmap::fromImage(immagine));
    scorre->setWidget(foglio);
    scorre->setAlignment(Qt::AlignCenter);
    scorre->setAccessibleName(u"Il biglietto stampato"_s);
    tutto->addWidget(scorre);
    const QStringList avvisi = pittore.prendiAvvisi();
    if (!avvisi.isEmpty()) {
        auto *nota = new QLabel(avvisi.mid(0, 5).join(u'\n'), this);
        nota->setWordWrap(true);
        nota->setObjectName(u"Avvisi"_s);
        tutto->addWidget(nota);
    }
    auto *chiudi = new QPushButton(u"C&hiudi"_s, this);
    chiudi->setObjectName(u"Chiudi"_s);
    chiudi->setDefault(true);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
    tutto->addWidget(chiudi, 0, Qt::AlignRight);
    resize(immagine.size().boundedTo(QSize(900, 600)) + QSize(50, 110));
}

} // namespace zuvora
