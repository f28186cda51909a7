#include "content/forms/ImpostaFoto.h"
#include "content/forms/ImpostaVideo.h"
#include "content/forms/SalvaNuovoIM.h"
#include "kit/FintoSistema.h"
#include "kit/Stanza.h"
#include "store/Ostacoli.h"

#include <QApplication>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMimeData>

namespace zuvora {
namespace {

struct ProvaPlaylistForm : Stanza {
    ProvaPlaylistForm() {
        for (const QString &nome : {a, b, c})
            QImage(40, 30, QImage::Format_RGB32).save(nome);
    }
    static QByteArray righe(const QStringList &voci) { return (voci.join(u"\r\n"_s) + u"\r\n"_s).toLatin1(); }
    template <class F = ImpostaFoto> std::unique_ptr<F> apri() { return apriForm<F>(i.ambiente, nullptr); }
    QString box() { // the one that comes when all files are asked for
        std::vector<FintiDialoghi::Box> venuti;
        EXPECT_TRUE(aspetta([&] { return !(venuti = i.dialoghi.prendiBox()).empty(); }));
        return venuti.empty() ? QString() : venuti[0].titolo + u'|' + venuti[0].testo;
    }
    QByteArray rapporto() const { return leggi(qui.cartella.filePath(u"FileImmaginiMancanti.txt"_s)); }
    static ListBox &lista(QWidget &form) { return trova<ListBox>(form, "List2"); }
    static QString attiva(QWidget &form) { return trova<Label>(form, "Label1(1)").Caption(); }
    // A click on a line of a list.
    static void scegli(QListWidget &elenco, int riga) {
        elenco.scrollToItem(elenco.item(riga));
        QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {}, elenco.visualItemRect(elenco.item(riga)).center());
    }
    const CartellaCorrente qui;
    const QString a = qui.cartella.filePath(u"a.jpg"_s);
    const QString b = qui.cartella.filePath(u"b.jpg"_s);
    const QString c = qui.cartella.filePath(u"c.jpg"_s);
    const QString sala = i.file(u"sala.zvi"_s);
};

TEST_F(ProvaPlaylistForm, EntriesComeMoveAndGoAndAreSaved) {
    scrivi(u"sala.zvi"_s, righe({a}));
    const auto form = apri();
    ListBox &elenco = lista(*form);
    EXPECT_EQ(elenco.ListIndex(), 0);
    const struct {
        const char *bottone;
        QStringList dopo;
        int indice, scelta = -1; // clicked before
    } passi[] = {
        {"Command2", {}, -1},         {"Command2", {}, -1},          {"Command3", {}, -1},
        {"Command6", {}, -1},         {"SalvaNuovo", {}, -1}, // an empty list is not saved
        {"Command10", {a, b, c}, -1}, {"Command4", {a, b, c}, 0, 0}, {"Command3", {b, a, c}, 1},
        {"Command3", {b, c, a}, 2},   {"Command3", {b, c, a}, 2},    {"Command4", {b, a, c}, 1},
        {"Command2", {b, c}, 0},
    };
    for (const auto &passo : passi) {
        if (passo.scelta >= 0)
            scegli(elenco, passo.scelta);
        clic(*form, passo.bottone);
        EXPECT_EQ(elenco.voci(), passo.dopo) << passo.bottone;
        EXPECT_EQ(elenco.ListIndex(), passo.indice) << passo.bottone;
    }
    EXPECT_EQ(leggi(sala), righe({a}));
    scegli(trova<FileListBox>(*form, "File1"), 1);
    clic(*form, "command1");
    clic(*form, "Command6");
    EXPECT_TRUE(conSpunta(trova<Button>(*form, "Command6")));
    EXPECT_EQ(leggi(sala), righe({b, c, b}));
    clic(*form, "Command9");
    EXPECT_EQ(elenco.ListCount(), 0);
    // Tab follows the way to a file, not the rows of the form.
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    trova<QWidget>(*form, "Drive1").setFocus();
    for (const char *dopo : {"Dir1", "File1", "Command6"}) {
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form->focusWidget()->objectName(), QLatin1StringView(dopo));
    }
}

TEST_F(ProvaPlaylistForm, WhatIsMissingIsReported) {
    scrivi(u"sala.zvi"_s, "/manca/citt\xe0.jpg\n\n" + a.toLatin1());
    const auto form = apri();
    EXPECT_EQ(box(), u"Zuvora3|Uno o più files mancanti.\rVerrà visualizzata la lista !"_s);
    EXPECT_EQ(rapporto(), "\"/manca/citt\xe0.jpg\"\r\n\"\"\r\n");
    const QStringList rapporti{qui.cartella.filePath(u"FileImmaginiMancanti.txt"_s)};
    EXPECT_TRUE(aspetta([&] { return i.piattaforma.fileAperti == rapporti; }));
    using enum AnteprimaImmagine::Stato;
    auto &Image1 = trova<AnteprimaImmagine>(*form, "Image1");
    for (const auto &[elenco, riga, stato] :
         {std::tuple{"List2", 2, Mostrata}, {"List2", 0, Vuota}, {"File1", 1, Mostrata}}) {
        scegli(trova<QListWidget>(*form, elenco), riga);
        EXPECT_TRUE(aspetta([&, stato = stato] { return Image1.stato() == stato && Image1.testo().isEmpty(); }))
            << riga;
    }
    clic(*form, "Command6"); // missing entries stay
    EXPECT_EQ(leggi(sala), "/manca/citt\xe0.jpg\r\n\r\n" + righe({a}));
    i.piattaforma.apreFile = false;
    QString detto;
    guida.messaggio(&detto);
    const auto altra = apri();
    EXPECT_TRUE(aspetta([&] { return guida.finita(); }));
    EXPECT_TRUE(detto.startsWith(u"Nessun programma per mostrare la lista !"_s));
    box();
}

// The report of a list before stays behind, and says so once, where it can't be written any more.
TEST_F(ProvaPlaylistForm, AReportThatCannotBeWrittenIsTold) {
    scrivi(u"sala.zvi"_s, righe({u"/manca.jpg"_s}));
    scrivi(u"tutto.zvi"_s, "/dev/null\r\n");
    const auto form = apri();
    box();
    const auto lettura =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    for (const QString &chiuso : {qui.cartella.filePath(u"FileImmaginiMancanti.txt"_s), qui.cartella.path()})
        QFile::setPermissions(chiuso, lettura);
    QFile::setPermissions(i.cartella(), lettura | QFile::WriteOwner);
    {
        const prova::UtenteQualunque utente;
        QString detto;
        guida.messaggio(&detto);
        scegli(trova<FileListBox>(*form, "File2"), 1);
        EXPECT_TRUE(aspetta([&] { return guida.finita() && !detto.isEmpty(); }));
        EXPECT_TRUE(detto.contains(u"è di una lista precedente"_s)) << detto.toStdString();
        scegli(trova<FileListBox>(*form, "File2"), 0);
        EXPECT_TRUE(box().contains(u"La lista non si può mostrare"_s));
        EXPECT_EQ(lista(*form).ListCount(), 1);
    }
    QFile::setPermissions(qui.cartella.path(), lettura | QFile::WriteOwner);
}

TEST_F(ProvaPlaylistForm, ASilentDiskDoesNotStallTheWindow) {
    scrivi(u"sala.zvi"_s, "/mnt/nas/a.jpg\r\n/qui/b.jpg\r\n");
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->albero = {{u"/qui/b.jpg"_s, Specie::File}};
    sistema->muta = u"/mnt/nas"_s;
    QElapsedTimer apertura;
    apertura.start();
    i.ambiente.percorsi = Percorsi(sistema);
    const auto form = apri();
    EXPECT_EQ(lista(*form).ListCount(), 2);
    scegli(lista(*form), 0); // its preview is asked for, and never comes
    EXPECT_LT(apertura.elapsed(), 1500);
    box();
    EXPECT_EQ(rapporto(), "\"/mnt/nas/a.jpg\"\r\n");
    sistema->risveglia();
}

TEST_F(ProvaPlaylistForm, TheDefaultAndItsTime) {
    scrivi(u"sala.zvi"_s, "");
    i.esegui(u"UPDATE Configurazione SET tempo=NULL, playlistFoto='prima'"_s);
    const auto form = apri();
    auto &tempo = trova<QLineEdit>(*form, "text1");
    EXPECT_EQ(tempo.text(), u"0"_s);
    digita(*form, "text1", u"6a1b2"_s);
    EXPECT_EQ(tempo.text(), u"61"_s);
    EXPECT_EQ(premi(*form, "Command89"), u"Impostare valore compreso fra 1 e 60"_s);
    EXPECT_EQ(riga(u"playlistFoto"_s), u"prima"_s);
    QTest::keyClick(&tempo, Qt::Key_Backspace);
    QString detto;
    guida.messaggio(&detto);
    QTest::keyClick(&tempo, Qt::Key_Return);
    EXPECT_EQ(detto, u"PlayList impostata come predefinita !"_s);
    EXPECT_EQ(i.righe(u"SELECT playlistFoto, tempo FROM Configurazione"_s), QStringList{sala + u"|6000"_s});
    scrivi(u"A.ZVI"_s, righe({a})); // shows, but does not load
    const auto grande = apri();
    EXPECT_EQ(attiva(*grande), i.file(u"A.ZVI"_s));
    EXPECT_EQ(lista(*grande).ListCount(), 0);
    clic(*grande, "Command89");
    EXPECT_EQ(riga(u"playlistFoto"_s), sala);
}

TEST_F(ProvaPlaylistForm, WhatCannotBeReadSavedOrDeletedIsToldAndStays) {
    scrivi(u"sala.zvi"_s, righe({a}));
    const auto form = apri();
    const auto rileggi = [&] {
        QString detto;
        guida.messaggio(&detto);
        scegli(trova<FileListBox>(*form, "File2"), 0);
        return detto;
    };
    {
        const prova::LimiteFile pieno(8); // bytes
        std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_TRUE(premi(*form, "Command6").startsWith(u"La playlist non è stata salvata !\n"_s));
    }
    QFile::rename(b, qui.cartella.filePath(u"\u0416.jpg"_s));
    trova<FileListBox>(*form, "File1").Refresh();
    clic(*form, "Command10");
    EXPECT_TRUE(premi(*form, "Command6").contains(u'\u0416'));
    EXPECT_EQ(lista(*form).ListCount(), 4);
    EXPECT_EQ(leggi(sala), righe({a}));
    QFile::remove(sala);
    EXPECT_TRUE(rileggi().startsWith(u"La playlist non si può leggere !"_s)); // deleted between listing and click
    EXPECT_EQ(lista(*form).ListCount(), 0);
    QFile enorme(sala);
    ASSERT_TRUE(enorme.open(QIODevice::WriteOnly) && enorme.resize(50 << 20));
    EXPECT_TRUE(rileggi().startsWith(u"La playlist non si può leggere !"_s));
    clic(*form, "Command10");
    EXPECT_TRUE(premi(*form, "Command6").startsWith(u"La playlist non è stata letta"_s));
    EXPECT_EQ(QFileInfo(sala).size(), 50 << 20);
    QFile::remove(sala);
    QDir(sala).mkpath(u"x"_s); // a folder that isn't empty
    EXPECT_TRUE(premi(*form, "PushButton1").startsWith(u"Il file non è stato eliminato !"_s));
    EXPECT_EQ(lista(*form).ListCount(), 3);
}

TEST_F(ProvaPlaylistForm, SavedUnderANewNameTheFirstIsShown) {
    scrivi(u"zeta.zvi"_s, righe({a}));
    QDir(i.cartella()).mkdir(u"cartella.zvi"_s);
    const auto form = apri();
    guida.quando("SalvaNuovoIM", [this](QWidget &w) {
        EXPECT_EQ(scritto(w, "Label1") + scritto(w, "Label2"), u"zviFoto"_s);
        EXPECT_EQ(premi(w, "PushButton1"), u"Inserire un nome per il file !"_s);
        digita(w, "FE", u"cartella"_s);
        EXPECT_TRUE(premi(w, "PushButton1").startsWith(u"La playlist non è stata salvata !\n"_s));
        i.piattaforma.appuntiSvuotati = 0;
        digita(w, "FE", u"Ne.s tate 24"_s);
        EXPECT_EQ(trova<QLineEdit>(w, "FE").text(), u"estate24"_s);
        EXPECT_GE(i.piattaforma.appuntiSvuotati, 12);
        QTest::keyClick(&trova<QLineEdit>(w, "FE"), Qt::Key_Backspace);
        QTest::keyClick(&trova<QLineEdit>(w, "FE"), Qt::Key_Return);
    });
    clic(*form, "SalvaNuovo");
    EXPECT_TRUE(guida.finita());
    EXPECT_EQ(attiva(*form), i.file(u"estate2.zvi"_s));
    EXPECT_EQ(leggi(i.file(u"estate2.zvi"_s)), righe({a}));
    clic(*form, "PushButton1"); // deletes without a question
    EXPECT_EQ(attiva(*form), i.file(u"zeta.zvi"_s));
    clic(*form, "PushButton1");
    EXPECT_EQ(attiva(*form) + QString::number(lista(*form).ListCount()), u"0"_s);
    clic(*form, "Command10");
    clic(*form, "Command6"); // no active file
    EXPECT_FALSE(QFile::exists(u".zvi"_s));
}

TEST_F(ProvaPlaylistForm, FilesOfAFileManagerAreAppendedWhenTheyMatch) {
    QDir(qui.cartella.path()).mkdir(u"d.MP4"_s);
    const auto form = apri<ImpostaVideo>();
    const QString cartella = qui.cartella.filePath(u"d.MP4"_s);
    QMimeData dati;
    dati.setUrls({QUrl::fromLocalFile(u"/v/a.MP4"_s), QUrl::fromLocalFile(cartella), QUrl::fromLocalFile(a),
                  QUrl(u"https://x/b.mp4"_s), QUrl::fromLocalFile(u"/v/b.avi"_s)});
    QDragEnterEvent arrivo({10, 10}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(lista(*form).viewport(), &arrivo);
    EXPECT_TRUE(arrivo.isAccepted());
    QDropEvent rilascio({10, 10}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(lista(*form).viewport(), &rilascio);
    EXPECT_TRUE(aspetta([&] { return lista(*form).ListCount() > 0; }));
    EXPECT_EQ(lista(*form).voci(), (QStringList{u"/v/a.MP4"_s, u"/v/b.avi"_s}));
}

TEST_F(ProvaPlaylistForm, FilmsArePreviewedOnRequest) {
    scrivi(u"sala.zvv"_s, "/manca.mp4\r\n");
    const auto form = apri<ImpostaVideo>();
    box();
    EXPECT_EQ(leggi(qui.cartella.filePath(u"FileVideoMancanti.txt"_s)), "\"/manca.mp4\"\r\n");
    const auto anteprima = [&](const char *bottone, const QString &nome) {
        guida.quando("AnteprimaVideo", [nome](QWidget &w) {
            EXPECT_EQ(scritto(w, "nome"), nome);
            w.close();
        });
        clic(*form, bottone);
        EXPECT_TRUE(guida.finita());
    };
    clic(*form, "PushButton1"); // nothing selected: nothing opens
    anteprima("PushButton2", u"manca.mp4"_s);
    QFile::rename(a, qui.cartella.filePath(u"a.mp4"_s));
    scrivi(u"sala.zvv"_s, righe({u"C:"_s + qui.cartella.filePath(u"A.MP4"_s).replace(u'/', u'\\')}));
    scegli(trova<FileListBox>(*form, "File2"), 0);
    anteprima("PushButton2", u"a.mp4"_s); // found in whatever case and form it is written
    trova<FileListBox>(*form, "File1").Refresh();
    scegli(trova<FileListBox>(*form, "File1"), 0);
    anteprima("PushButton1", u"a.mp4"_s);
    EXPECT_EQ(premi(*form, "Command89"), u"PlayList impostata come predefinita !"_s);
    EXPECT_EQ(riga(u"playlistVideo"_s), i.file(u"sala.zvv"_s));
}

} // namespace
} // namespace zuvora
