#include "content/Premi.h"
#include "content/forms/ImpostaFoto.h"
#include "content/forms/ImpostaVideo.h"
#include "kit/FintoSistema.h"
#include "kit/InstallazioneProva.h"
#include "store/Ostacoli.h"

#include <QApplication>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaPlaylistForm : public testing::Test {
protected:
    ProvaPlaylistForm() : m_prima(QDir::currentPath()) {
        QDir(i.cartella()).mkdir(u"lavoro"_s); // the current folder of the process
        QDir::setCurrent(i.file(u"lavoro"_s));
        for (const QString &nome : {u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s})
            QImage(40, 30, QImage::Format_RGB32).save(i.file(u"lavoro/"_s + nome));
    }
    ~ProvaPlaylistForm() override { QDir::setCurrent(m_prima); }

    QString foto(const QString &nome) const { return i.file(u"lavoro/"_s + nome); }
    void scrivi(const QString &nome, const QByteArray &contenuto) const {
        QFile file(i.file(nome));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contenuto);
    }
    QByteArray leggi(const QString &nome) const {
        QFile file(i.file(nome));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(manca)");
    }
    // Opens a form and waits for the check of the files that it lists.
    template <class F> std::unique_ptr<F> apri() {
        auto form = std::make_unique<F>(i.ambiente, nullptr);
        form->show();
        return form;
    }
    void attendiBox() {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !(m_box = i.dialoghi.prendiBox()).empty(); }, Attesa_ms));
    }
    static ListBox &lista(QWidget &form) { return trova<ListBox>(form, "List2"); }
    static QString attiva(QWidget &form) { return trova<Label>(form, "Label1(1)").Caption(); }
    // A click on a line of a list.
    static void scegli(QListWidget &elenco, int riga) {
        elenco.scrollToItem(elenco.item(riga));
        QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {}, elenco.visualItemRect(elenco.item(riga)).center());
    }
    InstallazioneProva i;
    std::vector<FintiDialoghi::Box> m_box;

private:
    QString m_prima;
};

TEST_F(ProvaPlaylistForm, BuildsSavesAndFindsItAgain) {
    scrivi(u"sala.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
    auto form = apri<ImpostaFoto>();
    EXPECT_EQ(attiva(*form), i.file(u"sala.zvi"_s));
    EXPECT_EQ(lista(*form).voci(), QStringList{foto(u"a.jpg"_s)});
    EXPECT_EQ(lista(*form).ListIndex(), 0);
    scegli(trova<FileListBox>(*form, "File1"), 1);
    clic(*form, "command1");
    clic(*form, "Command10");
    clic(*form, "Command6");
    EXPECT_TRUE(conSpunta(trova<Button>(*form, "Command6")));
    const QByteArray righe = (foto(u"a.jpg"_s) + u"\r\n"_s + foto(u"b.jpg"_s) + u"\r\n"_s + foto(u"a.jpg"_s) +
                              u"\r\n"_s + foto(u"b.jpg"_s) + u"\r\n"_s + foto(u"c.jpg"_s) + u"\r\n"_s)
                                 .toLatin1();
    EXPECT_EQ(leggi(u"sala.zvi"_s), righe);
    EXPECT_EQ(lista(*apri<ImpostaFoto>()).ListCount(), 5);
}

TEST_F(ProvaPlaylistForm, EntriesMoveAndGo) {
    auto form = apri<ImpostaFoto>();
    EXPECT_EQ(attiva(*form), QString());
    clic(*form, "Command2");
    clic(*form, "Command3");
    clic(*form, "Command10");
    ListBox &elenco = lista(*form);
    const QString a = foto(u"a.jpg"_s);
    const QString b = foto(u"b.jpg"_s);
    const QString c = foto(u"c.jpg"_s);
    scegli(elenco, 0);
    clic(*form, "Command4"); // first: stays
    clic(*form, "Command3");
    clic(*form, "Command3");
    clic(*form, "Command3"); // last: stays
    EXPECT_EQ(elenco.voci(), (QStringList{b, c, a}));
    EXPECT_EQ(elenco.ListIndex(), 2);
    clic(*form, "Command4");
    EXPECT_EQ(elenco.voci(), (QStringList{b, a, c}));
    clic(*form, "Command2");
    EXPECT_EQ(elenco.voci(), (QStringList{b, c}));
    EXPECT_EQ(elenco.ListIndex(), 0);
    clic(*form, "Command6"); // no active file: nothing is written
    clic(*form, "Command9");
    clic(*form, "SalvaNuovo"); // an empty list: nothing opens
    EXPECT_EQ(elenco.ListCount(), 0);
}

TEST_F(ProvaPlaylistForm, AnEmptyListIsNotSaved) {
    scrivi(u"sala.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
    auto form = apri<ImpostaFoto>();
    clic(*form, "Command9");
    clic(*form, "Command6");
    EXPECT_EQ(leggi(u"sala.zvi"_s), foto(u"a.jpg"_s).toLatin1() + "\r\n");
}

TEST_F(ProvaPlaylistForm, WhatIsMissingIsReported) {
    scrivi(u"sala.zvi"_s, "/manca/citt\xe0.jpg\n\n" + foto(u"a.jpg"_s).toLatin1());
    auto form = apri<ImpostaFoto>();
    EXPECT_EQ(lista(*form).ListCount(), 3);
    attendiBox();
    EXPECT_EQ(m_box[0].titolo, u"Zuvora3"_s);
    EXPECT_EQ(m_box[0].testo, u"Uno o più files mancanti.\rVerrà visualizzata la lista !"_s);
    EXPECT_EQ(leggi(u"lavoro/FileImmaginiMancanti.txt"_s), "\"/manca/citt\xe0.jpg\"\r\n\"\"\r\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !i.piattaforma.fileAperti.isEmpty(); }, Attesa_ms));
    EXPECT_EQ(i.piattaforma.fileAperti, QStringList{foto(u"FileImmaginiMancanti.txt"_s)});
    clic(*form, "Command6"); // missing entries stay
    EXPECT_EQ(leggi(u"sala.zvi"_s), "/manca/citt\xe0.jpg\r\n\r\n" + foto(u"a.jpg"_s).toLatin1() + "\r\n");
}

TEST_F(ProvaPlaylistForm, WithoutAViewerOrAReportTheUserIsTold) {
    scrivi(u"sala.zvi"_s, "/manca.jpg\r\n");
    i.piattaforma.apreFile = false;
    QString detto;
    Guida guida;
    guida.messaggio(&detto);
    auto form = apri<ImpostaFoto>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return guida.finita() && !detto.isEmpty(); }, Attesa_ms));
    EXPECT_TRUE(detto.startsWith(u"Nessun programma per mostrare la lista !"_s));
    i.dialoghi.prendiBox();
    QDir(i.file(u"lavoro"_s)).mkdir(u"x"_s);
    QDir::setCurrent(i.file(u"lavoro/x"_s));
    QDir(u"."_s).mkdir(u"FileImmaginiMancanti.txt"_s);
    auto altra = apri<ImpostaFoto>();
    attendiBox();
    EXPECT_TRUE(m_box[0].testo.contains(u"La lista non si può mostrare"_s)) << m_box[0].testo.toStdString();
    EXPECT_EQ(lista(*altra).ListCount(), 1);
}

TEST_F(ProvaPlaylistForm, ASilentDiskDoesNotStallTheWindow) {
    scrivi(u"sala.zvi"_s, "/mnt/nas/a.jpg\r\n/qui/b.jpg\r\n");
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero = {{u"/qui/b.jpg"_s, Specie::File}};
    sistema->muta = u"/mnt/nas"_s;
    QElapsedTimer apertura;
    apertura.start();
    i.ambiente.percorsi = Percorsi(sistema);
    auto form = apri<ImpostaFoto>();
    EXPECT_EQ(lista(*form).ListCount(), 2);
    scegli(lista(*form), 0); // its preview is asked for, and never comes
    EXPECT_LT(apertura.elapsed(), 1500);
    attendiBox();
    EXPECT_EQ(leggi(u"lavoro/FileImmaginiMancanti.txt"_s), "\"/mnt/nas/a.jpg\"\r\n");
    sistema->risveglia();
}

TEST_F(ProvaPlaylistForm, TheDefaultAndItsTime) {
    scrivi(u"sala.zvi"_s, "");
    i.esegui(u"UPDATE Configurazione SET tempo=NULL, playlistFoto=NULL"_s);
    auto form = apri<ImpostaFoto>();
    auto &tempo = trova<QLineEdit>(*form, "text1");
    EXPECT_EQ(tempo.text(), u"0"_s);
    EXPECT_EQ(premi(*form, "Command89"), u"Impostare valore compreso fra 1 e 60"_s);
    tempo.clear();
    QTest::keyClicks(&tempo, u"6a1b2"_s);
    EXPECT_EQ(tempo.text(), u"61"_s);
    EXPECT_EQ(premi(*form, "Command89"), u"Impostare valore compreso fra 1 e 60"_s);
    EXPECT_EQ(i.valore(u"SELECT playlistFoto FROM Configurazione"_s), QVariant());
    QTest::keyClick(&tempo, Qt::Key_Backspace);
    QString detto;
    Guida guida;
    guida.messaggio(&detto);
    QTest::keyClick(&tempo, Qt::Key_Return);
    EXPECT_EQ(detto, u"PlayList impostata come predefinita !"_s);
    EXPECT_EQ(i.righe(u"SELECT playlistFoto, tempo FROM Configurazione"_s),
              QStringList{i.file(u"sala.zvi"_s) + u"|6000"_s});
    EXPECT_EQ(trova<QLineEdit>(*apri<ImpostaFoto>(), "text1").text(), u"6"_s);
}

TEST_F(ProvaPlaylistForm, CapitalsInTheEndingShowButDoNotLoad) {
    scrivi(u"A.ZVI"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
    i.esegui(u"UPDATE Configurazione SET playlistFoto='prima'"_s);
    auto form = apri<ImpostaFoto>();
    EXPECT_EQ(attiva(*form), i.file(u"A.ZVI"_s));
    EXPECT_EQ(lista(*form).ListCount(), 0);
    clic(*form, "Command89");
    EXPECT_EQ(i.valore(u"SELECT playlistFoto FROM Configurazione"_s), u"prima"_s);
}

TEST_F(ProvaPlaylistForm, APlaylistThatCannotBeReadIsNotCovered) {
    scrivi(u"sala.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
    auto form = apri<ImpostaFoto>();
    QFile::remove(i.file(u"sala.zvi"_s));
    auto &File2 = trova<FileListBox>(*form, "File2");
    QString detto;
    Guida guida;
    guida.messaggio(&detto);
    scegli(File2, 0); // deleted between listing and click
    EXPECT_TRUE(detto.startsWith(u"La playlist non si può leggere !"_s));
    EXPECT_EQ(lista(*form).ListCount(), 0);
    QFile enorme(i.file(u"sala.zvi"_s));
    ASSERT_TRUE(enorme.open(QIODevice::WriteOnly) && enorme.resize(50 << 20));
    guida.messaggio(&detto);
    scegli(File2, 0);
    EXPECT_TRUE(detto.startsWith(u"La playlist non si può leggere !"_s));
    clic(*form, "Command10");
    EXPECT_TRUE(premi(*form, "Command6").startsWith(u"La playlist non è stata letta"_s));
    EXPECT_EQ(QFileInfo(i.file(u"sala.zvi"_s)).size(), 50 << 20);
}

TEST_F(ProvaPlaylistForm, ARefusedSaveKeepsFileAndList) {
    scrivi(u"sala.zvi"_s, "/vecchia\r\n");
    scrivi(u"lavoro/\u0416.jpg"_s, "");
    auto form = apri<ImpostaFoto>();
    attendiBox();
    clic(*form, "Command10");
    EXPECT_TRUE(premi(*form, "Command6").contains(u'\u0416'));
    EXPECT_EQ(lista(*form).ListCount(), 5);
    EXPECT_EQ(leggi(u"sala.zvi"_s), "/vecchia\r\n");
}

TEST_F(ProvaPlaylistForm, SavedUnderANewNameTheFirstIsShown) {
    scrivi(u"zeta.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
    auto form = apri<ImpostaFoto>();
    clic(*form, "Command10");
    Guida guida;
    guida.quando("SalvaNuovoIM", [](QWidget &w) {
        QTest::keyClicks(&trova<QLineEdit>(w, "FE"), u"estate"_s);
        clic(w, "PushButton1");
    });
    clic(*form, "SalvaNuovo");
    EXPECT_EQ(attiva(*form), i.file(u"estate.zvi"_s));
    EXPECT_EQ(lista(*form).ListCount(), 4);
    clic(*form, "PushButton1"); // deletes without a question
    EXPECT_EQ(leggi(u"estate.zvi"_s), "(manca)");
    EXPECT_EQ(attiva(*form), i.file(u"zeta.zvi"_s));
    clic(*form, "PushButton1");
    EXPECT_EQ(attiva(*form), QString());
    EXPECT_EQ(lista(*form).ListCount(), 0);
}

TEST_F(ProvaPlaylistForm, WhatCannotBeDeletedStays) {
    scrivi(u"sala.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
    auto form = apri<ImpostaFoto>();
    QFile::remove(i.file(u"sala.zvi"_s));
    QDir(i.cartella()).mkpath(u"sala.zvi/x"_s); // a folder that isn't empty
    EXPECT_TRUE(premi(*form, "PushButton1").startsWith(u"Il file non è stato eliminato !"_s));
    EXPECT_EQ(lista(*form).ListCount(), 1);
}

TEST_F(ProvaPlaylistForm, FilesOfAFileManagerAreAppendedWhenTheyMatch) {
    auto form = apri<ImpostaVideo>();
    QMimeData dati;
    dati.setUrls({QUrl::fromLocalFile(u"/v/a.MP4"_s), QUrl::fromLocalFile(u"/v/a.jpg"_s), QUrl(u"https://x/b.mp4"_s)});
    QDragEnterEvent arrivo({10, 10}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(lista(*form).viewport(), &arrivo);
    EXPECT_TRUE(arrivo.isAccepted());
    QDropEvent rilascio({10, 10}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(lista(*form).viewport(), &rilascio);
    EXPECT_EQ(lista(*form).voci(), QStringList{u"/v/a.MP4"_s});
}

TEST_F(ProvaPlaylistForm, ThePreviewOfImages) {
    scrivi(u"sala.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n/manca.jpg\r\n");
    auto form = apri<ImpostaFoto>();
    auto &Image1 = trova<AnteprimaImmagine>(*form, "Image1");
    attendiBox();
    scegli(lista(*form), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Image1.stato() == AnteprimaImmagine::Stato::Mostrata; }, Attesa_ms));
    scegli(lista(*form), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Image1.stato() == AnteprimaImmagine::Stato::Vuota; }, Attesa_ms));
    EXPECT_EQ(Image1.testo(), QString());
    scegli(trova<FileListBox>(*form, "File1"), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Image1.stato() == AnteprimaImmagine::Stato::Mostrata; }, Attesa_ms));
    fotografa(*form);
}

TEST_F(ProvaPlaylistForm, FilmsArePreviewedOnRequest) {
    i.piattaforma.cartella = QStringLiteral(CARTELLA_COMPONENTI);
    scrivi(u"sala.zvv"_s, "/manca.mp4\r\n");
    auto form = apri<ImpostaVideo>();
    attendiBox();
    EXPECT_EQ(leggi(u"lavoro/FileVideoMancanti.txt"_s), "\"/manca.mp4\"\r\n");
    clic(*form, "PushButton1"); // nothing selected: nothing opens
    Guida guida;
    guida.quando("AnteprimaVideo", [](QWidget &w) { w.close(); });
    clic(*form, "PushButton2");
    EXPECT_TRUE(guida.finita());
    scrivi(u"lavoro/a.mp4"_s, "");
    scrivi(u"sala.zvv"_s, "C:" + i.file(u"lavoro/A.MP4"_s).replace(u'/', u'\\').toLatin1() + "\r\n");
    scegli(trova<FileListBox>(*form, "File2"), 0);
    guida.quando("AnteprimaVideo", [](QWidget &w) { // found in whatever case and form it is written
        EXPECT_EQ(trova<QLabel>(w, "nome").text(), u"a.mp4"_s);
        w.close();
    });
    clic(*form, "PushButton2");
    EXPECT_TRUE(guida.finita());
    trova<FileListBox>(*form, "File1").Refresh();
    scegli(trova<FileListBox>(*form, "File1"), 0);
    guida.quando("AnteprimaVideo", [](QWidget &w) { w.close(); });
    clic(*form, "PushButton1");
    EXPECT_TRUE(guida.finita());
    EXPECT_EQ(premi(*form, "Command89"), u"PlayList impostata come predefinita !"_s);
    EXPECT_EQ(i.valore(u"SELECT playlistVideo FROM Configurazione"_s), i.file(u"sala.zvv"_s));
}

TEST_F(ProvaPlaylistForm, Aspetto) {
    for (const bool video : {false, true}) {
        scrivi(video ? u"sala.zvv"_s : u"sala.zvi"_s, foto(u"a.jpg"_s).toLatin1() + "\r\n");
        const std::unique_ptr<FormPlaylist> form = video ? std::unique_ptr<FormPlaylist>(apri<ImpostaVideo>())
                                                         : std::unique_ptr<FormPlaylist>(apri<ImpostaFoto>());
        EXPECT_EQ(didascalieTagliate(*form), QStringList());
        EXPECT_EQ(campiSenzaNome(*form), QStringList());
        fotografa(*form);
    }
}

} // namespace
} // namespace zuvora
