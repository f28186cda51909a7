// The designer's window, driven as a user does.
#include "etichette/designer/DesignerEtichetta.h"
#include "etichette/designer/EtichetteQt.h"
#include "etichette/designer/Foglio.h"
#include "etichette/logic/FileEtichetta.h"
#include "kit/FintiDialoghi.h"
#include "shell/logic/FileAtomico.h"
#include "store/Ostacoli.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Finestra : testing::Test {
    QTemporaryDir cartella;
    FintiDialoghi dialoghi;
    QStringList stampanti;
    QString stampato;
    QString ticket = cartella.filePath(u"Ticket.lbl"_s);
    Valori valori{QList<Variabile>{variabileDaContenuto(u"Numero"_s, u"152"_s, TipoEtichetta::Numero),
                                   variabileDaContenuto(u"Lettera"_s, u"A"_s, TipoEtichetta::Testo)}};
    std::unique_ptr<DesignerEtichetta> designer;

    DesignerEtichetta &apri(const Etichetta &e = {}) {
        DesignerEtichetta::Mondo mondo{dialoghi,
                                       [this] {
                                           return Stampanti{stampanti, {}};
                                       },
                                       [this](const QString &nome, const Etichetta &stampata, const Valori &) {
                                           const QPoint s = stampata.scostamenti.value(nome);
                                           stampato = u"%1 %2 %3"_s.arg(nome).arg(s.x()).arg(s.y());
                                           return QString();
                                       },
                                       [](int) { return std::nullopt; }};
        designer =
            std::make_unique<DesignerEtichetta>(e, valori, u"Impostazione Modulo"_s, ticket, std::move(mondo), nullptr);
        designer->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(designer.get()));
        return *designer;
    }
    template <class W> W &trova(const char *nome) {
        auto *w = designer->findChild<W *>(QString::fromLatin1(nome));
        if (w == nullptr)
            throw std::runtime_error(nome);
        return *w;
    }
    void premi(const char *nome) { QTest::mouseClick(&trova<QToolButton>(nome), Qt::LeftButton); }
    void scrivi(const char *nome, const QString &testo) {
        auto &campo = trova<QLineEdit>(nome);
        campo.setFocus();
        campo.selectAll();
        QTest::keyClicks(&campo, testo);
        QTest::keyClick(&campo, Qt::Key_Return);
    }
    QList<Oggetto> salvati() {
        premi("Salva");
        const EtichettaLetta letta = leggiEtichetta(ticket);
        return letta.etichetta ? letta.etichetta->oggetti : QList<Oggetto>();
    }
    void trascina(QPoint da, QPoint a, Qt::KeyboardModifiers tasti = {}) {
        QWidget *vista = trova<Foglio>("foglio").viewport();
        QTest::mousePress(vista, Qt::LeftButton, tasti, da);
        QMouseEvent mezzo(QEvent::MouseMove, (da + a) / 2, vista->mapToGlobal((da + a) / 2), Qt::NoButton,
                          Qt::LeftButton, tasti);
        QApplication::sendEvent(vista, &mezzo);
        QMouseEvent fine(QEvent::MouseMove, a, vista->mapToGlobal(a), Qt::NoButton, Qt::LeftButton, tasti);
        QApplication::sendEvent(vista, &fine);
        QTest::mouseRelease(vista, Qt::LeftButton, tasti, a);
    }
};

TEST_F(Finestra, DisegnareSalvareERiaprire) {
    apri();
    premi("AggiungiTesto");
    scrivi("ValoreX", u"12,5"_s);
    scrivi("ValoreY", u"8.3"_s);
    scrivi("ValoreLarghezza", u"40"_s);
    scrivi("ValoreAltezza", u"niente"_s); // no number: nothing changes
    auto &testo = trova<QPlainTextEdit>("ValoreTesto");
    testo.setFocus();
    testo.selectAll();
    QTest::keyClicks(&testo, u"{Lettera}{Numero}"_s);
    QTest::keyClick(&testo, Qt::Key_Enter);
    premi("AggiungiCodice");
    const auto oggetti = salvati();
    ASSERT_EQ(oggetti.size(), 2);
    EXPECT_EQ(oggetti[0].area, QRect(125, 83, 400, 80));
    EXPECT_EQ(oggetti[0].testo, u"{Lettera}{Numero}"_s);
    EXPECT_EQ(oggetti[1].tipo, TipoOggetto::Codice);
    EXPECT_EQ(oggetti[1].simbologia, Simbologia::Code128);
    EXPECT_EQ(designer->windowTitle(), u"Impostazione Modulo"_s);
    QTest::keyClick(&trova<Foglio>("foglio"), Qt::Key_Return); // writes on at its end
    QTest::keyClicks(designer->focusWidget(), u"9"_s);
    QTest::keyClick(designer->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(salvati()[1].testo, oggetti[1].testo + u'9');
}

TEST_F(Finestra, OgniOggettoNuovoESceltoEInVista) {
    apri();
    for (const char *nome : {"AggiungiTesto", "AggiungiCodice", "AggiungiLinea", "AggiungiCornice"}) {
        premi(nome);
        const QRect carta(0, 0, 800, 1200);
        const auto oggetti = salvati();
        EXPECT_TRUE(carta.contains(oggetti.last().area.topLeft()));
        EXPECT_TRUE(trova<QLineEdit>("ValoreX").isEnabled()) << nome;
        auto &foglio = trova<Foglio>("foglio");
        EXPECT_TRUE(foglio.viewport()->rect().contains(foglio.posizioneSuSchermo(int(oggetti.size()) - 1).topLeft()))
            << nome;
    }
}

TEST_F(Finestra, AnnullaERipristinaOgniCosa) {
    apri(modelliPronti().first().etichetta);
    const QByteArray prima = testoEtichetta(modelliPronti().first().etichetta);
    auto &foglio = trova<Foglio>("foglio");
    foglio.setFocus();
    QTest::keyClick(&foglio, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&foglio, Qt::Key_Right);
    QTest::keyClick(&foglio, Qt::Key_Right, Qt::ShiftModifier); // one step with the last
    premi("Duplica");
    premi("InFondo");
    premi("Elimina");
    premi("AggiungiCornice");
    salvati();
    for (int passi = 0; passi < 5; ++passi)
        premi("Annulla");
    EXPECT_FALSE(trova<QToolButton>("Annulla").isEnabled());
    salvati();
    EXPECT_EQ(testoEtichetta(*leggiEtichetta(ticket).etichetta), prima);
    for (int passi = 0; passi < 5; ++passi)
        premi("Ripristina");
    EXPECT_FALSE(trova<QToolButton>("Ripristina").isEnabled());
    EXPECT_EQ(salvati().size(), 9);
}

TEST_F(Finestra, IlTrascinamentoAgganciaEAltLoSospende) {
    Etichetta e;
    e.oggetti << nuovoOggetto(TipoOggetto::Cornice, QPoint(100, 100))
              << nuovoOggetto(TipoOggetto::Cornice, QPoint(137, 600));
    apri(e);
    auto &foglio = trova<Foglio>("foglio");
    const auto bordo = [&](int i) { return foglio.posizioneSuSchermo(i).topLeft() + QPoint(20, 20); };
    const double pixel = (foglio.posizioneSuSchermo(1).y() - foglio.posizioneSuSchermo(0).y()) / 500.0;
    trascina(bordo(1), bordo(1) + QPoint(int(-35 * pixel), 0)); // near the other's edge
    EXPECT_EQ(salvati()[1].area.x(), 100);
    trascina(bordo(1), bordo(1) + QPoint(int(17 * pixel), 0), Qt::AltModifier);
    EXPECT_NEAR(salvati()[1].area.x(), 117, 3);
}

// While the button is down another change comes: the drag is given up, and only what the key does happens.
TEST_F(Finestra, UnAltraModificaFaRinunciareAlTrascinamento) {
    const Etichetta pronta = modelliPronti().first().etichetta;
    for (const int tasto : {Qt::Key_Delete, Qt::Key_Escape})
        for (const bool mosso : {true, false}) {
            QFile::remove(ticket);
            apri(pronta);
            auto &foglio = trova<Foglio>("foglio");
            QWidget *vista = foglio.viewport();
            const QPoint da = foglio.posizioneSuSchermo(0).center();
            const auto muovi = [&](QPoint a) {
                QMouseEvent e(QEvent::MouseMove, a, vista->mapToGlobal(a), Qt::NoButton, Qt::LeftButton, {});
                QApplication::sendEvent(vista, &e);
            };
            QTest::mousePress(vista, Qt::LeftButton, {}, da);
            if (mosso)
                muovi(da + QPoint(30, 40));
            QTest::keyClick(&foglio, Qt::Key(tasto));
            muovi(da + QPoint(60, 80));
            QTest::mouseRelease(vista, Qt::LeftButton, {}, da + QPoint(60, 80));
            QList<Oggetto> attesi = pronta.oggetti;
            if (tasto == Qt::Key_Delete)
                attesi.removeFirst();
            const auto oggetti = salvati();
            ASSERT_EQ(oggetti.size(), attesi.size());
            for (qsizetype i = 0; i < oggetti.size(); ++i)
                EXPECT_EQ(oggetti[i].area, attesi[i].area) << tasto << mosso << i;
        }
}

// By keys alone: the first field has the focus, and the format is that of the paper there is.
TEST_F(Finestra, LeFinestrePiccoleSiUsanoDaiTasti) {
    apri(modelliPronti().first().etichetta);
    QTimer::singleShot(0, [] {
        QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activeModalWidget()->focusWidget(), Qt::Key_Return);
    });
    premi("Modelli");
    EXPECT_EQ(salvati().size(), modelliPronti()[1].etichetta.oggetti.size());
    QTimer::singleShot(0, [] {
        auto *finestra = QApplication::activeModalWidget();
        auto &formato = *finestra->findChild<QComboBox *>(u"Formato"_s);
        EXPECT_EQ(formato.currentText(), u"Rotolo 80 mm, lunghezza secondo il contenuto"_s);
        auto &larghezza = *finestra->findChild<QLineEdit *>(u"Larghezza"_s);
        larghezza.setFocus();
        larghezza.selectAll();
        QTest::keyClicks(&larghezza, u"72"_s);
        QTest::keyClick(&larghezza, Qt::Key_Return); // applies it, and the window stays
        EXPECT_EQ(formato.currentText(), u"su misura"_s);
        formato.setFocus();
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(&formato, Qt::Key_Down);
        QTest::keyClick(&formato, Qt::Key_Return);
    });
    premi("Carta");
    salvati();
    EXPECT_EQ(leggiEtichetta(ticket).etichetta->carta, formatiCarta()[3].carta);
}

TEST_F(Finestra, DentroUnaCorniceSiSceglieQuelloCheCiSta) {
    Etichetta e;
    e.oggetti << nuovoOggetto(TipoOggetto::Testo, QPoint(150, 150))
              << nuovoOggetto(TipoOggetto::Cornice, QPoint(100, 100));
    e.oggetti[1].area.setSize(QSize(600, 600));
    apri(e);
    const auto &foglio = trova<Foglio>("foglio");
    for (const auto &[punto, tipo] : {std::pair(foglio.posizioneSuSchermo(0).center(), TipoOggetto::Testo),
                                      std::pair(foglio.posizioneSuSchermo(1).center(), TipoOggetto::Cornice)}) {
        QTest::mouseClick(foglio.viewport(), Qt::LeftButton, {}, punto);
        EXPECT_EQ(trova<QPlainTextEdit>("ValoreTesto").isEnabled(), tipo == TipoOggetto::Testo);
    }
}

TEST_F(Finestra, UnaVariabileSiTrascinaSulFoglio) {
    apri();
    auto &elenco = trova<QListWidget>("variabili");
    const std::unique_ptr<QMimeData> dati(elenco.model()->mimeData({elenco.model()->index(1, 0)}));
    auto &foglio = trova<Foglio>("foglio");
    QDragEnterEvent entra(QPoint(120, 90), Qt::CopyAction, dati.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(foglio.viewport(), &entra);
    QDropEvent lascia(QPointF(120, 90), Qt::CopyAction, dati.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(foglio.viewport(), &lascia);
    ASSERT_EQ(salvati().size(), 1);
    EXPECT_EQ(salvati()[0].testo, u"{Lettera}"_s);
    EXPECT_NEAR(foglio.posizioneSuSchermo(0).x(), 120, 2);
}

TEST_F(Finestra, ChiudereChiedeDelleModifiche) {
    const struct {
        int risposta; // save, leave unsaved, stay
        bool aperta;
        bool scritto;
    } casi[] = {{2, true, false}, {1, false, false}, {0, false, true}};
    for (const auto &caso : casi) {
        apri();
        premi("AggiungiTesto");
        dialoghi.scelte.push_back(caso.risposta);
        designer->close();
        EXPECT_EQ(designer->isVisible(), caso.aperta);
        EXPECT_EQ(QFile::exists(ticket), caso.scritto);
    }
    apri();
    designer->close(); // nothing changed: no question
    EXPECT_FALSE(designer->isVisible());
}

// The folder of a kiosk that goes away, a disk that is full, a file that may only be read.
TEST_F(Finestra, UnSalvataggioFallitoLasciaTuttoQui) {
    const QString totem = cartella.filePath(u"totem"_s);
    const QString altrove = cartella.filePath(u"altrove.lbl"_s);
    ticket = totem + u"/Ticket.lbl"_s;
    const std::pair<std::function<std::shared_ptr<void>()>, const char16_t *> casi[] = {
        {[&] {
             QDir(totem).removeRecursively();
             return nullptr;
         },
         u"non esiste"},
        {[] { return std::make_shared<prova::LimiteFile>(100); }, u"troppo grande per questo disco"},
        {[&] {
             QFile::setPermissions(cartella.path(), QFile::Permissions(0x7755));
             QFile::setPermissions(totem, QFile::Permissions(0x7777));
             QFile::setPermissions(ticket, QFile::Permissions(0x4444));
             return std::make_shared<prova::UtenteQualunque>();
         },
         u"permessi"}};
    for (const auto &[ostacola, parola] : casi) {
        QDir().mkpath(totem);
        ASSERT_EQ(scriviEtichetta(ticket, {}), QString());
        apri();
        premi("AggiungiTesto");
        const QByteArray prima = leggiFile(ticket).contenuto;
        {
            const auto ostacolo = ostacola();
            premi("Salva");
        }
        const QString messaggio = dialoghi.unicoMessaggio();
        EXPECT_TRUE(messaggio.contains(u"non è stato salvato"_s) && messaggio.contains(QString::fromUtf16(parola)))
            << messaggio.toStdString();
        EXPECT_TRUE(!QFile::exists(totem) || leggiFile(ticket).contenuto == prima);
        dialoghi.file.push_back(altrove);
        premi("SalvaCopia");
        EXPECT_EQ(leggiEtichetta(altrove).etichetta->oggetti.size(), 1);
        EXPECT_TRUE(designer->windowTitle().endsWith(u'*')); // the ticket itself is still unsaved
        dialoghi.scelte.push_back(1);
        designer->close();
    }
}

// Place, measures and contents are in sight from the start, and say why they can't be used.
TEST_F(Finestra, ICampiPrincipaliSonoSempreInVista) {
    apri();
    const auto usabili = [this] {
        QString stato;
        for (const char *nome : {"ValoreX", "ValoreY", "ValoreLarghezza", "ValoreAltezza", "ValoreTesto"}) {
            const auto &campo = trova<QWidget>(nome);
            EXPECT_TRUE(campo.isVisible() && campo.isEnabled() == campo.accessibleDescription().isEmpty()) << nome;
            stato += campo.isEnabled() ? u'+' : u'-';
        }
        return stato;
    };
    EXPECT_EQ(usabili(), u"-----"_s);
    premi("AggiungiTesto");
    EXPECT_EQ(usabili(), u"+++++"_s);
    premi("AggiungiLinea");
    EXPECT_EQ(usabili(), u"++++-"_s);
    QTest::mouseClick(&trova<QCheckBox>("Bloccato"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(usabili(), u"-----"_s);
}

TEST_F(Finestra, LaCartaSegueLaFinestraFinoAUnIngrandimento) {
    apri();
    const auto intera = [this] {
        const auto &foglio = trova<Foglio>("foglio");
        return foglio.horizontalScrollBar()->maximum() == 0;
    };
    designer->resize(designer->width() - 150, designer->height());
    EXPECT_TRUE(QTest::qWaitFor(intera));
    trova<Foglio>("foglio").setZoom(400);
    designer->resize(designer->width() - 10, designer->height());
    QApplication::processEvents();
    EXPECT_EQ(trova<Foglio>("foglio").zoom(), 400);
}

TEST_F(Finestra, LeImmaginiSonoControllatePrima) {
    apri();
    const QString falsa = cartella.filePath(u"falsa.png"_s);
    QFile file(falsa);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("non sono un'immagine");
    file.close();
    for (const QString &percorso : {falsa, cartella.path(), cartella.filePath(u"manca.png"_s)}) {
        dialoghi.file.push_back(percorso);
        premi("AggiungiImmagine");
    }
    EXPECT_EQ(dialoghi.prendiBox().size(), 3U);
    QImage vera(40, 30, QImage::Format_RGB32);
    vera.fill(Qt::black);
    ASSERT_TRUE(vera.save(cartella.filePath(u"vera.png"_s)));
    dialoghi.file.push_back(cartella.filePath(u"vera.png"_s));
    premi("AggiungiImmagine");
    EXPECT_FALSE(salvati().last().immagine.isEmpty());
}

TEST_F(Finestra, LeImmaginiOstiliNonFermanoIlDesigner) {
    apri();
    const QString pipe = cartella.filePath(u"pipe.png"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QFile vuota(cartella.filePath(u"enorme.png"_s));
    ASSERT_TRUE(vuota.open(QIODevice::WriteOnly));
    ASSERT_TRUE(vuota.resize(3LL * 1024 * 1024 * 1024)); // no disk: a hole
    for (const auto &[percorso, motivo] :
         {std::pair(pipe, u"Non è un file"_s), {vuota.fileName(), u"troppo grande"_s}}) {
        dialoghi.file.push_back(percorso);
        premi("AggiungiImmagine");
        EXPECT_TRUE(dialoghi.unicoMessaggio().contains(motivo));
    }
    QImage vasta(20000, 20000, QImage::Format_Mono);
    vasta.fill(0);
    ASSERT_TRUE(vasta.save(cartella.filePath(u"vasta.png"_s)));
    dialoghi.file.push_back(cartella.filePath(u"vasta.png"_s));
    premi("AggiungiImmagine");
    EXPECT_EQ(QImage::fromData(salvati().last().immagine).size(), QSize(1600, 1600));
}

TEST_F(Finestra, SenzaStampantiLoDice) {
    apri();
    dialoghi.scelte.push_back(0);
    dialoghi.file.push_back(cartella.filePath(u"prova.pdf"_s));
    premi("StampaProva");
    EXPECT_TRUE(dialoghi.domande.last().contains(u"nessuna stampante"_s));
    EXPECT_TRUE(leggiFile(cartella.filePath(u"prova.pdf"_s)).contenuto.startsWith("%PDF"));
    stampanti << u"Zebra"_s;
    QTimer::singleShot(0, [] {
        auto *finestra = QApplication::activeModalWidget();
        auto *x = finestra->findChild<QLineEdit *>(u"ScostamentoX"_s);
        x->selectAll();
        QTest::keyClicks(x, u"-2"_s);
        QTest::mouseClick(finestra->findChild<QAbstractButton *>(u"Conferma"_s), Qt::LeftButton);
    });
    premi("StampaProva");
    EXPECT_EQ(stampato, u"Zebra -20 0"_s);
}

TEST_F(Finestra, LaBozzaSopravviveAUnaCaduta) {
    apri();
    premi("AggiungiTesto");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bozza(ticket).lasciata().has_value(); }, 10000));
    designer.reset(); // as if the program had ended
    ASSERT_TRUE(Bozza(ticket).lasciata());
    EXPECT_EQ(Bozza(ticket).lasciata()->oggetti.size(), 1);
    apri();
    designer->recupera(*Bozza(ticket).lasciata());
    EXPECT_EQ(salvati().size(), 1);
    EXPECT_FALSE(Bozza(ticket).lasciata());
}

TEST_F(Finestra, UnFileDiAltriSiSostituisceSoloSeLoSiVuole) {
    QFile file(ticket);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"programma":"zuvora-biglietto","versione":99})");
    file.close();
    EtichetteQt etichette(dialoghi);
    etichette.LlDefineVariableStart();
    etichette.LlDefineVariableExt(u"Numero"_s, u"1"_s, TipoEtichetta::Numero);
    dialoghi.scelte.push_back(1); // no
    EXPECT_NE(etichette.LlDefineLayout(nullptr, u"Impostazione Modulo"_s, 1, ticket), 0);
    EXPECT_TRUE(dialoghi.domande.last().contains(u"più recente"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("99"));
}

} // namespace
} // namespace zuvora
