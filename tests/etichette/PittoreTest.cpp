#include "etichette/logic/Pittore.h"
#include "etichette/logic/Testi.h"

#include <QBuffer>
#include <QPainter>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int dpi = 254; // a dot is a tenth of a millimetre

QImage disegna(const Etichetta &e, const Valori &valori = {}, Pittore::Modo modo = Pittore::Modo::Stampa) {
    QImage carta(e.carta.larghezza, e.carta.altezza, QImage::Format_RGB32);
    carta.fill(Qt::white);
    QPainter p(&carta);
    Pittore().disegna(p, e, valori, modo);
    return carta;
}

// The smallest rectangle round everything that isn't white.
QRect inchiostro(const QImage &carta) {
    QRect tutto;
    for (int y = 0; y < carta.height(); ++y)
        for (int x = 0; x < carta.width(); ++x)
            if (carta.pixel(x, y) != qRgb(255, 255, 255))
                tutto |= QRect(x, y, 1, 1);
    return tutto;
}

Etichetta con(const Oggetto &oggetto) {
    Etichetta e;
    e.carta = {400, 300, false, QMargins(), dpi};
    e.oggetti << oggetto;
    return e;
}

Oggetto testo(const QString &contenuto, const QRect &area) {
    Oggetto o;
    o.area = area;
    o.testo = contenuto;
    o.stile.punti = 20;
    o.stile.aCapo = false;
    return o;
}

QByteArray png(int larghezza, int altezza, QColor colore) {
    QImage immagine(larghezza, altezza, QImage::Format_RGB32);
    immagine.fill(colore);
    QByteArray byte;
    QBuffer buffer(&byte);
    buffer.open(QIODevice::WriteOnly);
    immagine.save(&buffer, "PNG");
    return byte;
}

TEST(PittoreBiglietto, IlTestoStaDoveLoStileLoMette) {
    const QRect area(50, 40, 300, 200);
    const QRect base = inchiostro(disegna(con(testo(u"HH"_s, area))));
    EXPECT_TRUE(area.contains(base));
    EXPECT_NEAR(base.height(), 20 * 3.5278 * 0.73, 4); // the height of a capital letter
    Oggetto o = testo(u"HH"_s, area);
    o.stile.orizzontale = Lato::Fine;
    o.stile.verticale = Lato::Fine;
    const QRect fondo = inchiostro(disegna(con(o)));
    EXPECT_GT(fondo.left(), base.left() + 150);
    EXPECT_GT(fondo.top(), base.top() + 80);
    o.stile.orizzontale = Lato::Centro;
    EXPECT_NEAR(inchiostro(disegna(con(o))).center().x(), area.center().x(), 2);
    o.rotazione = 90;
    const QRect girato = inchiostro(disegna(con(o)));
    EXPECT_LT(girato.center().x(), area.left() + 60); // its bottom looks to the left
    EXPECT_GT(girato.height(), girato.width());
}

TEST(PittoreBiglietto, RiduciFaStareTuttoNelRiquadro) {
    const QRect area(10, 10, 120, 60);
    Oggetto o = testo(u"Accettazione"_s, area);
    QImage carta(400, 300, QImage::Format_RGB32);
    QPainter p(&carta);
    EXPECT_FALSE(disegnaTesto(p, o.testo, o.stile, area.size()));
    o.stile.riduci = true;
    EXPECT_TRUE(disegnaTesto(p, o.testo, o.stile, area.size()));
    p.end();
    EXPECT_TRUE(area.contains(inchiostro(disegna(con(o)))));
    o.testo = u"A1234567"_s; // a number is not broken
    o.stile.punti = 40;
    o.stile.aCapo = true;
    EXPECT_LT(inchiostro(disegna(con(o))).height(), 30);
}

TEST(PittoreBiglietto, ContenutiOstiliNonFermanoIlDisegno) {
    for (const QString &ostile :
         {QString(100000, u'x'), QString(5000, u'\n'), u"\x1\x2\x7f\u202e"_s, u"שלום עולם"_s, QString()})
        for (const QSize &misura : {QSize(0, 0), QSize(1, 1), QSize(300, 200)})
            disegna(con(testo(ostile, QRect(QPoint(-20, -20), misura))));
}

TEST(PittoreBiglietto, LeImmaginiDiventanoBianchENere) {
    Oggetto o = nuovoOggetto(TipoOggetto::Immagine, QPoint(20, 30));
    o.area.setSize(QSize(100, 50));
    const struct {
        RiduzioneColori riduzione;
        int grigio;
        double neri; // share of the dots
    } casi[] = {{RiduzioneColori::Soglia, 127, 1},
                {RiduzioneColori::Soglia, 129, 0},
                {RiduzioneColori::Retino, 191, 0.25},
                {RiduzioneColori::Retino, 64, 0.75}};
    for (const auto &caso : casi) {
        o.immagine = png(40, 20, QColor(caso.grigio, caso.grigio, caso.grigio));
        o.riduzione = caso.riduzione;
        const QImage carta = disegna(con(o));
        int neri = 0;
        for (int y = 0; y < carta.height(); ++y)
            for (int x = 0; x < carta.width(); ++x) {
                const QRgb colore = carta.pixel(x, y);
                EXPECT_TRUE(colore == qRgb(0, 0, 0) || colore == qRgb(255, 255, 255));
                neri += colore == qRgb(0, 0, 0) ? 1 : 0;
            }
        EXPECT_NEAR(neri / 5000.0, caso.neri, 0.06);
    }
}

TEST(PittoreBiglietto, ProporzioniDellImmagine) {
    const QImage dots = puntiImmagine(png(40, 20, Qt::black), QSize(100, 100), RiduzioneColori::Soglia, 128);
    EXPECT_EQ(dots.size(), QSize(100, 50));
    EXPECT_TRUE(puntiImmagine("nessuna immagine", QSize(10, 10), RiduzioneColori::Retino, 128).isNull());
}

TEST(PittoreBiglietto, CondizioniELunghezzaCheCresce) {
    Etichetta e;
    e.carta = {400, 200, true, QMargins(0, 0, 0, 20), dpi};
    Oggetto cresce = testo(u"{Messaggio}"_s, QRect(0, 0, 400, 95));
    cresce.stile.aCapo = true;
    cresce.stile.cresce = true;
    Oggetto sotto = nuovoOggetto(TipoOggetto::Cornice, QPoint(0, 100));
    sotto.area.setHeight(80);
    Oggetto forse = nuovoOggetto(TipoOggetto::Cornice, QPoint(0, 500));
    forse.condizione = {u"Messaggio"_s, true};
    e.oggetti << cresce << sotto << forse;
    const auto messaggio = [](const QString &testo) {
        return Valori({{u"Messaggio"_s, TipoEtichetta::Testo, testo, {}, {}, {}}});
    };
    EXPECT_EQ(Pittore::misuraCarta(e, messaggio(u"breve"_s)), QSize(400, 200));
    EXPECT_EQ(Pittore::misuraCarta(e, messaggio({})), QSize(400, 720)); // the frame for an empty message
    const Valori lungo = messaggio(u"parola "_s.repeated(40));
    const auto posti = Pittore::disponi(e, lungo, Pittore::Modo::Stampa);
    const int di = posti[0]->height() - 95;
    EXPECT_GT(di, 100);
    EXPECT_EQ(posti[1]->y(), 100 + di);
    EXPECT_FALSE(posti[2]);
    EXPECT_EQ(Pittore::misuraCarta(e, lungo).height(), 100 + di + 80 + 20);
    EXPECT_TRUE(Pittore::disponi(e, lungo, Pittore::Modo::Progetto)[2]);
}

TEST(PittoreBiglietto, AvvisiDelDisegno) {
    Etichetta e = con(testo(u"{Sparita}"_s, QRect(50, 50, 200, 100)));
    e.carta.margini = QMargins(30, 30, 30, 30);
    e.oggetti << testo(u"sopra"_s, QRect(100, 60, 200, 100)) << testo(u"fuori"_s, QRect(350, 200, 100, 50))
              << testo(u"margine"_s, QRect(10, 200, 100, 50));
    const QString avvisi = controlla(e, Valori()).join(u'\n');
    for (const QString &parola : {u"Sparita"_s, u"si sovrappongono"_s, u"esce dalla carta"_s, u"nel margine"_s})
        EXPECT_TRUE(avvisi.contains(parola)) << avvisi.toStdString();
    for (const ModelloPronto &modello : modelliPronti()) {
        Valori valori;
        for (const Oggetto &o : modello.etichetta.oggetti)
            for (const QString &nome : nomiIn(o.testo))
                valori.metti({nome, TipoEtichetta::Testo, u"A1"_s, {}, {}, {}});
        EXPECT_EQ(controlla(modello.etichetta, valori), QStringList()) << modello.nome.toStdString();
    }
}

} // namespace
} // namespace zuvora
