// F1 and the guide.
#include "kit/Guida.h"
#include "kit/InstallazioneProva.h"
#include "shell/host/AiutoF1.h"
#include "shell/host/Form.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Aiuto : testing::Test {
    InstallazioneProva prova;
    AiutoF1 aiuto{prova.ambiente};

    Aiuto() {
        QDir(prova.valori.PercorsoApplicazione + u"/guida"_s).removeRecursively();
        qApp->installEventFilter(&aiuto);
    }
    void scrivi(const QString &nome, const QByteArray &contenuto) const {
        const QDir guida(prova.valori.PercorsoApplicazione + u"/guida"_s);
        EXPECT_TRUE(guida.mkpath(u"."_s));
        QFile f(guida.filePath(nome));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenuto);
    }
};

TEST_F(Aiuto, OgniFinestraApreIlSuoCapitolo) {
    scrivi(u"capitoli.csv"_s, "Form3,testo-meteo\nBoxImpostazioni(1),servizi\n");
    for (const char *pagina : {"testo-meteo.html", "servizi.html", "index.html"})
        scrivi(QString::fromLatin1(pagina), "x");
    Form conosciuta(prova.ambiente, "Form3", "", {3000, 1500}, nullptr);
    Edit campo(&conosciuta, "text1", {0, 0, 1500, 300});
    Form estranea(prova.ambiente, "Estranea", "", {3000, 1500}, nullptr);
    GroupBox dentro(&estranea, "BoxImpostazioni(1)", "", {0, 0, 3000, 900});
    Edit nellaPagina(&dentro, "ipS1", {0, 0, 1500, 300});
    const struct {
        QWidget *widget;
        QString pagina;
    } casi[] = {{&conosciuta, u"testo-meteo.html"_s},
                {&campo, u"testo-meteo.html"_s},
                {&nellaPagina, u"servizi.html"_s},
                {&estranea, u"index.html"_s}};
    for (const auto &caso : casi) {
        prova.piattaforma.aperti.clear();
        QTest::keyClick(caso.widget, Qt::Key_F1);
        ASSERT_EQ(prova.piattaforma.aperti.size(), 1);
        EXPECT_EQ(prova.piattaforma.aperti.first().toLocalFile(),
                  prova.valori.PercorsoApplicazione + u"/guida/"_s + caso.pagina);
    }
}

TEST_F(Aiuto, SenzaGuidaLoDice) {
    Form form(prova.ambiente, "Form3", "", {3000, 1500}, nullptr);
    Guida guida;
    QString righe;
    guida.messaggio(&righe);
    QTest::keyClick(&form, Qt::Key_F1);
    EXPECT_TRUE(righe.contains(u"La guida non è"_s)) << righe.toStdString();
    EXPECT_TRUE(prova.piattaforma.aperti.isEmpty());
}

} // namespace
} // namespace zuvora
