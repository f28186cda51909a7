#include "kit/FintoSistema.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "shell/disegni/Tavolozza.h"
#include "shell/host/ColorPicker.h"
#include "shell/host/Form.h"
#include "shell/host/Grid.h"
#include "shell/host/ListBox.h"
#include "shell/host/QtDialoghi.h"
#include "shell/host/QtPiattaforma.h"
#include "shell/host/Rete.h"
#include "shell/store/Data.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFontDialog>
#include <QHelpEvent>
#include <QListView>
#include <QProgressBar>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <cmath>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(Twips, ControlliCheSiToccanoSiToccanoSulloSchermo) {
    for (int left = -40; left < 40; ++left) {
        const QRect primo = pixelDa(Posto{left, 0, 1095, 330});
        const QRect secondo = pixelDa(Posto{left + 1095, 0, 1095, 330});
        EXPECT_EQ(primo.x() + primo.width(), secondo.x()) << left;
    }
}

TEST(Filtri, IlDialogoMostraLaDescrizioneEFiltraSenzaMaiuscole) {
    const InstallazioneProva prova; // the application
    const QTemporaryDir cartella;
    for (const char *nome : {"campana.WAV", "note.txt"}) {
        QFile f(cartella.filePath(QString::fromLatin1(nome)));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    QString mostrato;
    QStringList elenco;
    Guida guida;
    guida.quando("QFileDialog", [&](QWidget &dialogo) {
        mostrato = dialogo.findChild<QComboBox *>(u"fileTypeCombo"_s)->currentText();
        const auto *vista = dialogo.findChild<QListView *>(u"listView"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return vista->model()->rowCount(vista->rootIndex()) == 1; }));
        elenco << vista->model()->index(0, 0, vista->rootIndex()).data().toString();
        dialogo.close();
    });
    QtDialoghi().apriFile(nullptr, {{}, u"File Suono (*.wav) )|*.wav"_s, cartella.path()});
    EXPECT_EQ(mostrato, u"File Suono (*.wav) )"_s);
    EXPECT_EQ(elenco, QStringList{u"campana.WAV"_s});
}

TEST(Filtri, IlDialogoNonSiApreDoveIlDiscoTace) {
    const InstallazioneProva prova;
    const QTemporaryDir cartella;
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero = {{QDir::currentPath(), Specie::Cartella}};
    sistema->muta = cartella.path();
    QString aperta;
    QtDialoghi dialoghi{Percorsi(sistema)};
    for (const auto &apri : {std::function([&] {
                                 dialoghi.apriFile(nullptr, {{}, {}, cartella.path()});
                             }),
                             std::function([&] {
                                 dialoghi.salvaFile(nullptr, {{}, {}, cartella.path(), u"x"_s});
                             }),
                             std::function([&] { dialoghi.scegliCartella(nullptr, {}, cartella.path()); })}) {
        Guida guida;
        guida.quando("QFileDialog", [&](QWidget &w) {
            aperta = static_cast<QFileDialog &>(w).directory().path();
            w.close();
        });
        apri();
        EXPECT_EQ(aperta, QDir::currentPath());
    }
    sistema->risveglia();
}

double contrasto(const QColor &a, const QColor &b) {
    const auto luce = [](const QColor &c) {
        const auto lineare = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * lineare(c.redF()) + 0.7152 * lineare(c.greenF()) + 0.0722 * lineare(c.blueF()) + 0.05;
    };
    return std::max(luce(a), luce(b)) / std::min(luce(a), luce(b));
}

TEST(Stile, ITestiSiLeggono) {
    preparaApplicazione();
    using P = QPalette;
    const QPalette colori = QApplication::palette();
    for (const auto &[testo, fondo] : {std::pair(P::WindowText, P::Window),
                                       {P::Text, P::Base},
                                       {P::Text, P::AlternateBase},
                                       {P::ButtonText, P::Button},
                                       {P::HighlightedText, P::Highlight},
                                       {P::PlaceholderText, P::Base},
                                       {P::ToolTipText, P::ToolTipBase},
                                       {P::Link, P::Window}})
        for (const auto gruppo : {P::Active, P::Inactive, P::Disabled})
            EXPECT_GE(contrasto(colori.color(gruppo, testo), colori.color(gruppo, fondo)), 4.5)
                << testo << ' ' << gruppo;
}

// Whether or not they can be used: the edge at the left of a control, half its height down.
TEST(Stile, IBordiSiVedono) {
    InstallazioneProva prova;
    QWidget finestra;
    finestra.resize(300, 500);
    QList<QWidget *> tutti;
    const auto metti = [&](QWidget *w) {
        w->setGeometry(20, 10 + 30 * int(tutti.size()), 100, 24);
        tutti << w;
    };
    const Posto posto{0, 0, 1500, 360};
    const auto bottone = [&](Ruolo ruolo) {
        auto *b = new Button(&finestra, "b", "b", posto);
        b->setRuolo(ruolo);
        return b;
    };
    metti(bottone(Ruolo::Normale));
    metti(bottone(Ruolo::Principale));
    metti(bottone(Ruolo::Distruttivo));
    auto *lettura = new Edit(&finestra, "e", posto);
    lettura->setReadOnly(true);
    metti(lettura);
    metti(new Edit(&finestra, "e", posto));
    metti(new CheckBox(&finestra, "c", "c", posto));
    metti(new RadioButton(&finestra, "r", "r", posto));
    metti(new ComboBox(&finestra, "s", posto));
    metti(new GroupBox(&finestra, "g", "", posto));
    metti(new ListBox(&finestra, "l", posto));
    metti(new ColorPicker(&finestra, "p", posto, prova.dialoghi));
    metti(new QSpinBox(&finestra));
    metti(new QSlider(Qt::Horizontal, &finestra));
    metti(new QProgressBar(&finestra));
    for (const bool acceso : {true, false}) {
        for (QWidget *w : std::as_const(tutti))
            w->setEnabled(acceso);
        const QImage vista = finestra.grab().toImage();
        for (const QWidget *w : std::as_const(tutti)) {
            double visto = 0;
            for (int x = 0; x < 6; ++x)
                visto = std::max(visto, contrasto(vista.pixelColor(w->geometry().center() - QPoint(50 - x, 0)),
                                                  vista.pixelColor(2, 2)));
            EXPECT_GE(visto, 3) << w->metaObject()->className() << w->y() << (acceso ? "" : ", off");
        }
    }
}

TEST(Stile, UnCursoreDiceSeSiUsaESeHaIlFuoco) {
    preparaApplicazione();
    QWidget finestra;
    auto *altro = new QSlider(Qt::Horizontal, &finestra);
    auto *cursore = new QSlider(Qt::Horizontal, &finestra);
    altro->move(0, 60);
    cursore->setValue(cursore->maximum());
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra));
    const auto scuri = [&](QWidget *fuoco) {
        fuoco->setFocus();
        const QImage vista = cursore->grab().toImage();
        int quanti = 0;
        for (int n = 0; n < vista.width() * vista.height(); ++n)
            quanti += qGray(vista.pixel(n % vista.width(), n / vista.width())) < 100 ? 1 : 0;
        return quanti;
    };
    const int senza = scuri(altro);
    EXPECT_GT(senza, 100); // what is full of it
    EXPECT_GT(scuri(cursore), senza + 20);
    cursore->setEnabled(false);
    EXPECT_EQ(scuri(altro), 0);
}

class FormProva : public Form {
public:
    explicit FormProva(const Ambiente &a) : Form(a, "FormProva", "Prova", {6000, 4500}, nullptr) {}
    bool rifiuta = false;

    Label Etichetta{this, "Label1", "Nome della Radio", {120, 120, 2000, 255}};
    Edit Campo{this, "text1(0)", {120, 400, 2000, 285}};
    Button Lungo{this, "Btn(1)", "Una didascalia piuttosto lunga", {120, 1000, 1900, 330}};

protected:
    bool puoScaricarsi() override { return !rifiuta; }
};

struct ConForm : testing::Test {
    InstallazioneProva prova;
    FormProva form{prova.ambiente};
};

TEST_F(ConForm, IlCampoPrendeIlNomeDallEtichetta) {
    form.show();
    EXPECT_EQ(form.Campo.accessibleName(), u"Nome della Radio"_s);
}

TEST_F(ConForm, DidascaliaLungaSiStringeENonSiTaglia) {
    form.show();
    const auto stretta = [&] { return form.Lungo.font() != form.Campo.font(); };
    EXPECT_TRUE(stretta() && didascalieTagliate(form).isEmpty());
    form.Lungo.setCaption(u"Breve"_s);
    EXPECT_FALSE(stretta());
    form.Lungo.setCaption(u"Una didascalia piuttosto larga"_s);
    EXPECT_TRUE(stretta() && didascalieTagliate(form).isEmpty());
    form.Lungo.setCaption(u"Una didascalia che in nessun modo può stare in così poco spazio"_s);
    EXPECT_EQ(didascalieTagliate(form), QStringList{u"Btn(1)"_s});
}

TEST_F(ConForm, IlDisegnoStaPrimaDellaDidascaliaSeEntra) {
    form.Lungo.allineaASinistra();
    form.Lungo.setDisegno(Disegno::Campana);
    const auto dipinto = [&] {
        const QImage vista = form.Lungo.grab({0, 0, 20, 20}).toImage();
        for (int x = 0; x < vista.width(); ++x)
            if (vista.pixelColor(x, vista.height() / 2) == tavolozza::evidenza)
                return true;
        return false;
    };
    form.Lungo.setCaption(u"Breve"_s);
    EXPECT_TRUE(QTest::qWaitFor(dipinto));
    form.Lungo.setCaption(u"Una didascalia piuttosto lunga"_s);
    EXPECT_FALSE(dipinto());
}

TEST_F(ConForm, UnaVoceTagliataSiLeggeNelSuggerimento) {
    ListBox lista(&form, "lista", {120, 2000, 1500, 1500});
    const QString lunga = u"/media/archivio/<b>immagini della sala d'attesa</b>.jpg"_s;
    lista.setVoci({u"breve"_s, lunga});
    form.show();
    for (const auto &[riga, atteso] : {std::pair(1, u"<qt>"_s + lunga.toHtmlEscaped() + u"</qt>"_s), {0, QString()}}) {
        const QPoint punto = lista.visualItemRect(lista.item(riga)).center();
        QHelpEvent evento(QEvent::ToolTip, punto, lista.viewport()->mapToGlobal(punto));
        QApplication::sendEvent(lista.viewport(), &evento);
        EXPECT_TRUE(QTest::qWaitFor([&, testo = atteso] { return QToolTip::text() == testo; })) << riga;
    }
    EXPECT_EQ(lista.visualItemRect(lista.item(1)).width(), lista.viewport()->width());
}

TEST_F(ConForm, UnErroreNonGestitoDiventaUnMessaggio) {
    form.alClic(form.Lungo, [&] {
        Data dato;
        apri(dato, prova.cartella() + u"/manca"_s, u"Configurazione"_s);
    });
    form.Lungo.click();
    EXPECT_FALSE(prova.dialoghi.unicoMessaggio().isEmpty());
}

TEST_F(ConForm, ChiusuraRifiutataLasciaLaFormAperta) {
    form.rifiuta = true;
    form.show();
    form.close();
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    form.rifiuta = false;
    form.scarica();
    EXPECT_FALSE(form.isVisible());
}

TEST(ColorPicker, ColoriConIlRossoNelByteBasso) {
    InstallazioneProva prova;
    ColorPicker scelta(nullptr, "CP1", {0, 0, 1695, 375}, prova.dialoghi);
    EXPECT_EQ(bgrDa(coloreDa(0x00C08040)), 0x00C08040);
    EXPECT_EQ(coloreDa(0x000000FF), QColor(Qt::red));
    QSignalSpy scelto(&scelta, &ColorPicker::scelto);
    prova.dialoghi.colori = {std::nullopt, 255};
    scelta.click(); // cancelled
    EXPECT_EQ(scelto.size(), 0);
    scelta.click();
    EXPECT_EQ(scelta.Colore(), 255);
    EXPECT_EQ(scelto.size(), 1);
}

TEST(Griglia, ClicRigaEAttivazioneSonoTreCose) {
    InstallazioneProva prova;
    Data dato;
    apri(dato, prova.cartella(), u"Select * from Servizi order by [ID]asc"_s);
    QWidget finestra;
    Grid griglia(&finestra, "grid", {0, 0, 6840, 5280}, {{"ID", "id", 900}, {"Servizio", "servizio", 0}});
    Grid seconda(&finestra, "grid2", {0, 0, 6840, 900}, {{"ID", "id", 900}});
    griglia.lega(dato);
    seconda.lega(dato);
    finestra.show();
    dato.Recordset().SetAbsolutePosition(4);
    dato.Recordset().Edit();
    dato.Recordset()[u"Servizio"].SetValue(u"Cassa"_s);
    dato.Recordset().Update();
    EXPECT_EQ(griglia.testo(4, 1), u"Cassa"_s);
    dato.Refresh();
    EXPECT_EQ(griglia.Row(), 0);
    QSignalSpy clic(&griglia, &Grid::cliccato);
    QSignalSpy righe(&griglia, &Grid::rigaCambiata);
    QSignalSpy attivati(&griglia, &Grid::attivato);
    const auto conta = [&] {
        return QStringLiteral("%1 %2 %3").arg(clic.size()).arg(righe.size()).arg(attivati.size()).toStdString();
    };
    const auto punto = [&](int riga) { return griglia.visualRect(griglia.model()->index(riga, 1)).center(); };
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {}, punto(3));
    EXPECT_EQ(conta(), "1 1 0");
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {}, punto(3));
    EXPECT_EQ(conta(), "2 1 0");
    QTest::keyClick(&griglia, Qt::Key_End);
    EXPECT_EQ(griglia.Row(), 19);
    EXPECT_EQ(dato.Recordset().AbsolutePosition(), 19);
    QTest::keyClick(&griglia, Qt::Key_Home);
    EXPECT_EQ(griglia.Row(), 0);
    EXPECT_EQ(conta(), "2 3 0");
    for (const int tasto : {int(Qt::Key_Return), int(Qt::Key_Enter), int(Qt::Key_Space)})
        QTest::keyClick(&griglia, Qt::Key(tasto));
    EXPECT_EQ(conta(), "2 3 3");
    QTest::mouseClick(griglia.viewport(), Qt::LeftButton, {}, punto(0));
    QTest::mouseDClick(griglia.viewport(), Qt::LeftButton, {}, punto(0));
    EXPECT_EQ(conta(), "3 3 4") << "one click and one activation";
    prova.esegui(u"ALTER TABLE Servizi RENAME TO Altrove"_s);
    EXPECT_ANY_THROW(dato.Refresh());
    EXPECT_EQ(griglia.Rows() + seconda.Rows(), 0) << "no rows of a list that could not be read";
}

TEST(Rete, LIndirizzoDellaRottaPredefinitaNonIlPrimoPonte) {
    const QByteArray rotte = "Iface\tDestination\tGateway\tFlags\tRefCnt\tUse\tMetric\tMask\tMTU\tWindow\tIRTT\n"
                             "docker0\t000011AC\t00000000\t0001\t0\t0\t0\t0000FFFF\t0\t0\t0\n"
                             "wlan0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                             "spenta\t00000000\t0101A8C0\t0002\t0\t0\t1\t00000000\t0\t0\t0\n"
                             "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
    EXPECT_EQ(interfacciaPredefinita(rotte), u"eth0"_s);
    EXPECT_EQ(interfacciaPredefinita("Iface\nrotta\n"), QString());
    const QList<Interfaccia> tutte{
        {u"docker0"_s, u"172.17.0.1"_s, true}, {u"wlan0"_s, u"192.0.2.9"_s, false}, {u"eth0"_s, u"192.0.2.7"_s, false}};
    EXPECT_EQ(indirizzoProposto(tutte, u"eth0"_s), u"192.0.2.7"_s);
    EXPECT_EQ(indirizzoProposto(tutte, {}), u"192.0.2.9"_s);
    EXPECT_EQ(indirizzoProposto({tutte.front()}, {}), u"172.17.0.1"_s);
    EXPECT_EQ(indirizzoProposto({}, u"eth0"_s), u"127.0.0.1"_s);
}

// Qt's own provider of icons looks into each file: this dialog would never come up.
TEST(DialogoFile, UnFileCheNonRispondeNonLoFerma) {
    InstallazioneProva prova;
    ASSERT_EQ(mkfifo(QFile::encodeName(prova.file(u"tubo.jpg"_s)).constData(), 0600), 0);
    QtDialoghi dialoghi;
    bool visto = false;
    Guida guida;
    guida.quando("QFileDialog", [&](QWidget &dialogo) {
        auto *lista = dialogo.findChild<QListView *>();
        visto = QTest::qWaitFor([&] { return lista->model()->rowCount(lista->rootIndex()) > 0; });
        dialogo.close();
    });
    EXPECT_EQ(dialoghi.apriFile(nullptr, {u"Prova"_s, u"Immagini|*.jpg"_s, prova.cartella()}), std::nullopt);
    EXPECT_TRUE(visto);
}

TEST(DialogoFont, CominciaDalFontDatoSenzaBarratoNeSottolineato) {
    preparaApplicazione();
    QtDialoghi dialoghi;
    for (const QString &nome : {u"Tahoma"_s, u"Arial"_s}) { // the machine has another one for the second
        QTimer::singleShot(0, [&] {
            auto *dialogo = qobject_cast<QFontDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            const auto caselle = dialogo->findChildren<QCheckBox *>();
            EXPECT_FALSE(caselle.isEmpty());
            for (const QCheckBox *casella : caselle)
                EXPECT_FALSE(casella->isVisible());
            dialogo->accept();
        });
        const auto scelto = dialoghi.scegliFont(nullptr, FontScelto{nome, 14, true, false});
        ASSERT_TRUE(scelto.has_value());
        EXPECT_EQ(scelto->nome, nome);
        EXPECT_EQ(scelto->misura, 14);
        EXPECT_TRUE(scelto->grassetto);
    }
}

} // namespace
} // namespace zuvora
