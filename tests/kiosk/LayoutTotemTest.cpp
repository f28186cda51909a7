#include "kiosk/forms/LayoutTotem.h"
#include "kit/FintoSistema.h"
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"

#include <QFile>
#include <QScreen>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaLayoutTotem : public testing::Test {
protected:
    static RichiestaAnteprima richiesta(int servizi, int schermo = 1) {
        RichiestaAnteprima r{schermo, {}, true, true, {12000, 9000}};
        if (const SchermoTotem &s = schermiTotem.at(std::size_t(schermo)); s.larghezza > 0)
            r.finestra = {s.larghezza, s.altezza};
        for (int i = 1; i <= servizi; ++i)
            r.servizi << u"Servizio %1"_s.arg(i);
        return r;
    }
    void sfondo(const QString &percorso) {
        i.esegui(u"UPDATE ConfigurazioneTotem SET SfondoTotem='%1', TitoloTotem='Titolo mio'"_s.arg(percorso));
    }
    static int visibili(LayoutTotem &form) {
        int quanti = 0;
        for (const BottoneTotem *b : form.findChildren<BottoneTotem *>())
            quanti += b->isVisibleTo(&form) ? 1 : 0;
        return quanti;
    }
    static QString avviso(LayoutTotem &form) {
        auto &etichetta = trova<Label>(form, "Avviso");
        return etichetta.isVisibleTo(&form) ? etichetta.Caption() : QString();
    }
    // The colours that stand where a part of the form is.
    static QSet<QRgb> tinte(LayoutTotem &form, const char *nome) {
        const QImage vista = form.grab().toImage();
        const QRect posto = trova<QWidget>(form, nome).geometry() & vista.rect();
        QSet<QRgb> trovate;
        for (int y = posto.top(); y <= posto.bottom(); y += 2)
            for (int x = posto.left(); x <= posto.right(); ++x)
                trovate << vista.pixel(x, y);
        return trovate;
    }
    InstallazioneProva i;
};

TEST_F(ProvaLayoutTotem, PlacesTitleDateAndButtons) {
    sfondo({});
    LayoutTotem form(i.ambiente, richiesta(7, 0), nullptr);
    EXPECT_EQ(visibili(form), 7);
    EXPECT_EQ(trova<BottoneTotem>(form, "Bottone(7)").posto().left, 6600);
    EXPECT_EQ(trova<BottoneTotem>(form, "Bottone(7)").Caption(), u" Servizio 7"_s);
    EXPECT_EQ(trova<BottoneTotem>(form, "Bottone(8)").posto().top, 23000);
    EXPECT_EQ(trova<Label>(form, "TitoloTXT").Caption(), u"Titolo mio"_s);
    const auto &data = trova<Label>(form, "Label1");
    EXPECT_EQ(data.geometry().right() + 1, (19200 - 240) / 15);
    EXPECT_EQ(data.Caption(), dataInParole(QDate::currentDate()));
    EXPECT_EQ(avviso(form), QString());
}

TEST_F(ProvaLayoutTotem, TextsHaveTheStoredLook) {
    sfondo({});
    const auto bottone1 = [this](const char *colore) {
        i.esegui(u"UPDATE ConfigurazioneTotem SET FontForecolor='%1',FontSize='60'"_s.arg(QLatin1String(colore)));
        LayoutTotem form(i.ambiente, richiesta(1), nullptr);
        return tinte(form, "Bottone(1)");
    };
    EXPECT_TRUE(bottone1("255").contains(qRgb(255, 0, 0)));
    EXPECT_TRUE(bottone1("").contains(qRgb(0, 0, 0))) << "an empty colour leaves the button's own";
    i.esegui(u"UPDATE ConfigurazioneTotem SET FontTitolo='Verdana',FontSizeTitolo='33',FontForecolorTitolo='255',"
             "FontBoldTitolo=1,FontItalicTitolo=0,FontData='Courier',FontSizeData='22',FontForecolorData='65280',"
             "FontBoldData=0,FontItalicData=1,FontSize='grande'"_s);
    LayoutTotem form(i.ambiente, richiesta(1), nullptr);
    const std::tuple<const char *, const char *, QColor> casi[] = {{"TitoloTXT", "Verdana 33 1 0", Qt::red},
                                                                   {"Label1", "Courier 22 0 1", Qt::green}};
    for (const auto &[nome, atteso, colore] : casi) {
        const auto &etichetta = trova<Label>(form, nome);
        const QFont f = etichetta.font();
        EXPECT_EQ(u"%1 %2 %3 %4"_s.arg(f.family()).arg(f.pointSize()).arg(f.bold()).arg(f.italic()),
                  QLatin1String(atteso));
        EXPECT_EQ(etichetta.palette().color(QPalette::WindowText), colore) << nome;
    }
    EXPECT_TRUE(avviso(form).contains(u"misura del font dei pulsanti"_s));
}

TEST_F(ProvaLayoutTotem, TheBoxesOfTheSettingsHideTitleAndDate) {
    RichiestaAnteprima r = richiesta(1);
    r.testoVisibile = false;
    LayoutTotem form(i.ambiente, r, nullptr);
    EXPECT_FALSE(trova<Label>(form, "TitoloTXT").isVisibleTo(&form));
    EXPECT_TRUE(trova<Label>(form, "Label1").isVisibleTo(&form));
}

TEST_F(ProvaLayoutTotem, SaysWhyNothingOrNotAllIsPlaced) {
    const struct {
        int servizi;
        int schermo;
        int visti;
        const char *parola;
    } casi[] = {{5, 3, 0, "Nessuna disposizione"},
                {0, 1, 0, "Nessun servizio attivo"},
                {21, 1, 0, ""},
                {15, 1, 15, "17 pixel"},
                {20, 1, 20, "41 pixel"},
                {10, 1, 10, ""}};
    for (const auto &caso : casi) {
        LayoutTotem form(i.ambiente, richiesta(caso.servizi, caso.schermo), nullptr);
        EXPECT_EQ(visibili(form), caso.visti) << caso.servizi;
        EXPECT_TRUE(avviso(form).contains(QLatin1String(caso.parola))) << caso.servizi << avviso(form).toStdString();
    }
    LayoutTotem form(i.ambiente, richiesta(5, 3), nullptr);
    EXPECT_EQ(trova<Label>(form, "TitoloTXT").Caption(), u"Scegli il Servizio........."_s);
    EXPECT_EQ(trova<BottoneTotem>(form, "Bottone(5)").Caption(), u" Servizio 5"_s);
}

TEST_F(ProvaLayoutTotem, ABackgroundThatIsGoneEndsTheArrangementOneOutOfReachDoesNot) {
    QFile finto(i.file(u"finto.jpg"_s));
    ASSERT_TRUE(finto.open(QIODevice::WriteOnly));
    finto.write("no picture at all");
    finto.close();
    const struct {
        QString percorso;
        int visti;
        const char *parola;
    } casi[] = {{i.file(u"manca.jpg"_s), 0, "non esiste"},
                {i.file(u"finto.jpg"_s), 0, "non è un'immagine"},
                {i.file(u"Nessuna/manca.jpg"_s), 3, "non è raggiungibile"},
                {i.cartella(), 3, "non è raggiungibile"},
                {u"\\\\ALTRO\\Immagini\\x.jpg"_s, 3, "non è raggiungibile"},
                {i.file(u"ZuvoraSfondiHD/FH_blu_4post_.jpg"_s), 3, ""},
                {QString(i.file(u"ZuvoraSfondiHD/FH_blu_4post_.jpg"_s)).prepend(u"\\\\localhost"_s), 3, ""}};
    for (const auto &caso : casi) {
        sfondo(caso.percorso);
        LayoutTotem form(i.ambiente, richiesta(3), nullptr);
        EXPECT_EQ(visibili(form), caso.visti) << caso.percorso.toStdString();
        EXPECT_TRUE(avviso(form).contains(QString::fromUtf8(caso.parola))) << avviso(form).toStdString();
        EXPECT_EQ(avviso(form).isEmpty(), *caso.parola == '\0') << avviso(form).toStdString();
        const bool disposto = trova<Label>(form, "TitoloTXT").Caption() == u"Titolo mio"_s;
        EXPECT_EQ(disposto, caso.visti > 0);
    }
}

TEST_F(ProvaLayoutTotem, ABackgroundThatNeverAnswersCountsAsOutOfReach) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->muta = u"/lontano"_s;
    sfondo(u"/lontano/x.jpg"_s);
    i.ambiente.percorsi = Percorsi(sistema);
    LayoutTotem form(i.ambiente, richiesta(3), nullptr);
    EXPECT_EQ(visibili(form), 3);
    EXPECT_TRUE(avviso(form).contains(u"non è raggiungibile"_s));
    sistema->risveglia();
}

TEST_F(ProvaLayoutTotem, ThePictureStandsAtItsOwnSize) {
    QImage grande(3000, 2000, QImage::Format_RGB32);
    grande.fill(Qt::red);
    grande.setPixel(1919, 0, qRgb(0, 0, 255));
    ASSERT_TRUE(grande.save(i.file(u"grande@2x.bmp"_s)));
    sfondo(i.file(u"grande@2x.bmp"_s));
    LayoutTotem form(i.ambiente, richiesta(0), nullptr);
    EXPECT_EQ(form.grab().toImage().pixel(1919, 0), qRgb(0, 0, 255));
}

TEST_F(ProvaLayoutTotem, ButtonsTextsAndNoticeStandInThePicture) {
    sfondo({});
    LayoutTotem form(i.ambiente, richiesta(15), nullptr);
    for (const char *nome : {"Bottone(1)", "Bottone(15)", "TitoloTXT", "Label1", "Avviso"})
        EXPECT_GT(tinte(form, nome).size(), 4) << nome << " has no text";
    EXPECT_TRUE(tinte(form, "Bottone(9)").contains(qRgb(0xF4, 0xF7, 0xFB)));
    EXPECT_TRUE(tinte(form, "Avviso").contains(qRgb(0xFF, 0xF4, 0xC4)));
}

TEST_F(ProvaLayoutTotem, NamesAreWrappedAndNeverCut) {
    i.esegui(u"UPDATE ConfigurazioneTotem SET FontSize='60'"_s);
    RichiestaAnteprima r = richiesta(20, 2);
    r.servizi[0] = u"Prenotazioni & ritiro dei referti specialistici della poliambulatoriale"_s;
    r.servizi[1] = u"Precipitevolissimevolmente"_s;
    LayoutTotem form(i.ambiente, r, nullptr);
    for (const char *nome : {"Bottone(1)", "Bottone(2)"}) {
        auto &bottone = trova<BottoneTotem>(form, nome);
        const QFontMetrics metrica(bottone.fontMostrato());
        const QRect spazio = bottone.rect().adjusted(8, 8, -8, -8);
        const QRect testo = metrica.boundingRect(spazio, Qt::AlignCenter | Qt::TextWordWrap, bottone.Caption());
        EXPECT_TRUE(spazio.contains(testo)) << nome;
        EXPECT_GE(bottone.fontMostrato().pointSizeF(), 12) << nome;
    }
    EXPECT_EQ(trova<BottoneTotem>(form, "Bottone(3)").fontMostrato().pointSizeF(),
              trova<BottoneTotem>(form, "Bottone(4)").fontMostrato().pointSizeF());
}

TEST_F(ProvaLayoutTotem, IsMovedByAnyPlaceOfIt) {
    sfondo({});
    QWidget apritore;
    apritore.show();
    LayoutTotem form(i.ambiente, richiesta(3), &apritore);
    form.move(50, 60);
    form.show();
    const QPoint prima = form.pos();
    EXPECT_EQ(prima, form.screen()->availableGeometry().topLeft()) << "larger than the monitor, with its frame in view";
    QWidget *bersaglio = form.childAt(600, 400);
    EXPECT_EQ(bersaglio, nullptr) << "a press on a button reaches the window";
    QTest::mousePress(&form, Qt::LeftButton, {}, {600, 400});
    QMouseEvent mossa(QEvent::MouseMove, QPointF(570, 380), form.mapToGlobal(QPointF(570, 380)), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&form, &mossa);
    EXPECT_EQ(form.pos() - prima, QPoint(-30, -20));
    QTest::keyClick(&form, Qt::Key_Down);
    EXPECT_EQ(form.pos() - prima, QPoint(-30, 40));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace zuvora
