#include "library/forms/ImpostaSfondo.h"
#include "kit/InstallazioneProva.h"
#include "library/Premi.h"
#include "shell/logic/SistemaFile.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaSfondo : public testing::Test {
protected:
    ProvaSfondo() : prima(QDir::currentPath()) {
        QDir(i.cartella()).mkpath(u"foto/vuota"_s);
        QDir::setCurrent(i.file(u"foto"_s));
        QFile::copy(i.file(u"ZuvoraSfondiHD/FH_grigio_8post_.jpg"_s), u"L'età.JPG"_s);
        QFile testo(u"zz.bmp"_s);
        EXPECT_TRUE(testo.open(QIODevice::WriteOnly) && testo.write("niente") > 0);
    }
    ~ProvaSfondo() override { QDir::setCurrent(prima); }
    std::unique_ptr<ImpostaSfondo> apri(ModoSfondo modo) {
        UsoSfondo uso{[this](const QString &p) {
                          impostati << p;
                          return riesce;
                      },
                      {}};
        if (modo == ModoSfondo::Layout)
            uso.elimina = [this] { impostati << u"(eliminato)"_s; };
        auto form = std::make_unique<ImpostaSfondo>(i.ambiente, modo, uso, nullptr);
        form->show();
        return form;
    }
    static void scegli(QWidget &form, int riga) {
        auto &elenco = trova<FileListBox>(form, "File1");
        QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {}, elenco.visualItemRect(elenco.item(riga)).center());
    }
    static QString misure(QWidget &form) {
        return trova<QLineEdit>(form, "F1").text() + u' ' + trova<QLineEdit>(form, "F2").text();
    }
    InstallazioneProva i;
    QString prima;
    QStringList impostati;
    bool riesce = true;
};

TEST_F(ProvaSfondo, NelLayout) {
    const auto form = apri(ModoSfondo::Layout);
    EXPECT_EQ(trova<QLabel>(*form, "Label5").text(), u"Layout"_s);
    EXPECT_EQ(trova<DirListBox>(*form, "Dir1").Path(), QDir::toNativeSeparators(QDir::currentPath()));
    EXPECT_EQ(misure(*form), u"0 0"_s);
    clicca(*form, "PushButton1"); // nothing clicked: the background is taken away
    scegli(*form, 0);
    EXPECT_EQ(misure(*form), u"529 393"_s);
    clicca(*form, "PushButton1");
    clicca(*form, "PushButton3");
    EXPECT_EQ(impostati, QStringList({QString(), QDir::current().filePath(u"L'età.JPG"_s), u"(eliminato)"_s}));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(ProvaSfondo, NelTotem) {
    const auto form = apri(ModoSfondo::SfondoTotem);
    EXPECT_EQ(trova<QLabel>(*form, "Label5").text(), u"Sfondo Totem"_s);
    clicca(*form, "PushButton1");
    EXPECT_TRUE(impostati.isEmpty());
    scegli(*form, 0);
    clicca(*form, "PushButton1");
    clicca(*form, "PushButton1");
    const QString rete =
        u"\\\\"_s + SistemaLocale().nomeMacchina() + QDir::current().filePath(u"L'età.JPG"_s).replace(u'/', u'\\');
    EXPECT_EQ(impostati, QStringList({rete, rete}));
    EXPECT_FALSE(premi(*form, "PushButton3").isEmpty());
    EXPECT_EQ(impostati.size(), 2);
}

TEST_F(ProvaSfondo, UnaImmagineIllegibileNonCambiaNulla) {
    for (const ModoSfondo modo : {ModoSfondo::Layout, ModoSfondo::SfondoTotem}) {
        const auto form = apri(modo);
        scegli(*form, 1);
        EXPECT_EQ(anteprimaFinita(*form).stato(), AnteprimaImmagine::Stato::NonLeggibile);
        EXPECT_TRUE(premi(*form, "PushButton1").startsWith(u"Impossibile caricare"_s));
        EXPECT_TRUE(impostati.isEmpty());
    }
    // One that would fit into a layout, but not at its own size into the memory.
    QFile enorme(u"aa.jpg"_s);
    ASSERT_TRUE(enorme.open(QIODevice::WriteOnly));
    enorme.write(QByteArray::fromHex("89504E470D0A1A0A 0000000D 49484452 00004E20 00004E20 0802000000 6C12D16E"
                                     "00000000 49444154 35AF061E 00000000 49454E44 AE426082"));
    enorme.close();
    const auto totem = apri(ModoSfondo::SfondoTotem);
    scegli(*totem, 0);
    EXPECT_TRUE(premi(*totem, "PushButton1").contains(u"20000 x 20000"_s));
    EXPECT_TRUE(impostati.isEmpty());
    enorme.remove();

    riesce = false;
    const auto form = apri(ModoSfondo::Layout);
    scegli(*form, 0);
    EXPECT_TRUE(premi(*form, "PushButton1").startsWith(u"Impossibile caricare"_s));
}

TEST_F(ProvaSfondo, UnaFotoGrandeArrivaSenzaFermareLaForm) {
    ASSERT_TRUE(QImage(5000, 4000, QImage::Format_RGB32).save(u"aa.jpg"_s));
    const auto form = apri(ModoSfondo::Layout);
    auto &anteprima = trova<AnteprimaImmagine>(*form, "Image1");
    scegli(*form, 0);
    EXPECT_EQ(anteprima.stato(), AnteprimaImmagine::Stato::InCorso);
    scegli(*form, 2); // the picture that comes late must not cover what was chosen meanwhile
    EXPECT_EQ(anteprimaFinita(*form).stato(), AnteprimaImmagine::Stato::NonLeggibile);
    scegli(*form, 0);
    EXPECT_EQ(anteprimaFinita(*form).stato(), AnteprimaImmagine::Stato::Mostrata);
    EXPECT_TRUE(anteprima.percorso().endsWith(u"aa.jpg"_s));
}

} // namespace
} // namespace zuvora
