#include "library/forms/Elementi.h"
#include "kit/FintoSistema.h"
#include "kit/InstallazioneProva.h"
#include "library/Premi.h"
#include "shell/host/Attesa.h"
#include "shell/host/Form.h"
#include "shell/host/Grid.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

class ProvaElementi : public testing::Test {
protected:
    QString immagine(const QString &nome, Qt::GlobalColor colore = Qt::red) {
        QImage im(40, 30, QImage::Format_RGB32);
        im.fill(colore);
        EXPECT_TRUE(im.save(&apriFile(nome), nome.endsWith(u".bmp"_s) ? "BMP" : "PNG"));
        m_file.close();
        return m_file.fileName();
    }
    QFile &apriFile(const QString &nome) {
        m_file.setFileName(i.file(nome));
        EXPECT_TRUE(m_file.open(QIODevice::WriteOnly));
        return m_file;
    }
    int righe() { return i.valore(u"SELECT count(*) FROM Decorazioni"_s).toInt(); }
    QString aggiungi(Elementi &form, const std::optional<QString> &file) {
        i.dialoghi.file.push_back(file);
        return premi(form, "PushButton2");
    }
    Grid &grid(Elementi &form) { return trova<Grid>(form, "grid"); }
    InstallazioneProva i;
    QFile m_file;
};

TEST_F(ProvaElementi, AggiungeLaRigaPoiCopiaESceglieLaNuova) {
    const QString origine = immagine(u"la mia età d'oro.bmp"_s);
    Elementi form(i.ambiente, nullptr);
    clicca(form, "RB1(1)");
    EXPECT_EQ(aggiungi(form, origine), u"Memorizzazione e Copia effettuate !"_s);
    EXPECT_EQ(i.righe(u"SELECT ID > 171, File, Tipo FROM Decorazioni ORDER BY ID DESC LIMIT 1"_s),
              QStringList{u"1|la mia età d'oro.bmp|2"_s});
    EXPECT_TRUE(QFile::exists(i.file(u"ZuvoraDecorazioni/Banner/la mia età d'oro.bmp"_s)));
    EXPECT_EQ(grid(form).testo(grid(form).Row(), 0), u"la mia età d'oro.bmp"_s);
    EXPECT_EQ(anteprimaFinita(form).stato(), AnteprimaImmagine::Stato::Mostrata);
    const RichiestaFile &richiesta = i.dialoghi.richiesteFile.front();
    EXPECT_EQ(richiesta.titolo, u"Selezionare il file da inserire in Decorazioni"_s);
    EXPECT_EQ(richiesta.filtro, u"(*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif"_s);
    EXPECT_EQ(richiesta.cartella, i.cartella());

    EXPECT_EQ(aggiungi(form, origine), u"Memorizzazione e Copia effettuate !"_s) << "the same file twice: two rows";
    EXPECT_EQ(i.valore(u"SELECT count(*) FROM Decorazioni WHERE ID > 171"_s).toInt(), 2);
}

TEST_F(ProvaElementi, UnFileDiversoNonSiPerdeSenzaDomanda) {
    Elementi form(i.ambiente, nullptr);
    const QString origine = immagine(u"x.bmp"_s);
    aggiungi(form, origine);
    const QString copia = i.file(u"ZuvoraDecorazioni/Cornici/x.bmp"_s);
    const QImage prima(copia);
    immagine(u"x.bmp"_s, Qt::blue);
    const int quante = righe();
    EXPECT_EQ(aggiungi(form, origine), u"Il file esiste già nella cartella.\nSostituirlo ?"_s);
    EXPECT_EQ(righe(), quante) << "after a no there is no row either";
    EXPECT_EQ(QImage(copia), prima);
    QString fine;
    Guida guida;
    guida.messaggio(nullptr, 1).messaggio(&fine);
    i.dialoghi.file.push_back(origine);
    clicca(form, "PushButton2");
    EXPECT_EQ(fine, u"Memorizzazione e Copia effettuate !"_s);
    EXPECT_EQ(righe(), quante + 1);
    EXPECT_NE(QImage(copia), prima);
}

TEST_F(ProvaElementi, CopiaFallitaLasciaLaRiga) {
    const QString origine = immagine(u"y.bmp"_s);
    QDir(i.file(u"ZuvoraDecorazioni/Cornici"_s)).removeRecursively();
    immagine(u"ZuvoraDecorazioni/Cornici"_s); // a file where the folder should be
    Elementi form(i.ambiente, nullptr);
    EXPECT_TRUE(aggiungi(form, origine).startsWith(u"Controllare la procedura ed eseguirla nuovamente !"_s));
    EXPECT_EQ(i.valore(u"SELECT File FROM Decorazioni WHERE ID > 171"_s).toString(), u"y.bmp"_s);
    EXPECT_EQ(anteprimaFinita(form).testo(), u"File non trovato.\ny.bmp"_s);
}

TEST_F(ProvaElementi, AnnullatoOIllegibileNonScrive) {
    Elementi form(i.ambiente, nullptr);
    const QByteArray prima = i.contenuto();
    i.dialoghi.file.push_back(std::nullopt);
    clicca(form, "PushButton2");
    apriFile(u"testo.jpg"_s).write("non sono un'immagine");
    m_file.close();
    EXPECT_EQ(aggiungi(form, m_file.fileName()),
              u"Impossibile caricare l'immagine scelta !\nIl file non è un'immagine leggibile."_s);
    // Its pixels can be shown as far as they go.
    QImage(64, 64, QImage::Format_RGB32).save(i.file(u"foto.jpg"_s));
    ASSERT_TRUE(QFile::resize(i.file(u"foto.jpg"_s), QFileInfo(i.file(u"foto.jpg"_s)).size() / 3));
    EXPECT_TRUE(aggiungi(form, i.file(u"foto.jpg"_s)).startsWith(u"Impossibile caricare l'immagine scelta !"_s));
    EXPECT_EQ(i.contenuto(), prima);
    EXPECT_FALSE(QFile::exists(i.file(u"ZuvoraDecorazioni/Cornici/foto.jpg"_s)));
}

// What is long is told while it runs and can be called off; what is short shows nothing.
TEST_F(ProvaElementi, LAttesaMostraLAvanzamentoESiAnnulla) {
    Form form(i.ambiente, "Prova", "", {3000, 3000}, nullptr);
    EXPECT_EQ(aspettaEsito<int>(i.ambiente, &form, u"breve"_s, [](Avanzamento &) { return 7; }), 7);
    EXPECT_THROW(aspetta(i.ambiente, &form, u"guasta"_s, [](Avanzamento &) { throw std::bad_alloc(); }),
                 std::bad_alloc);
    const auto finita = std::make_shared<std::atomic<bool>>(false);
    Guida guida;
    guida.quando("Attesa", [](QWidget &w) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return trova<QProgressBar>(w, "Barra").value() == 40; }));
        EXPECT_EQ(trova<QLabel>(w, "Label1").text(), u"lunga"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    });
    const bool fatta = aspetta(i.ambiente, &form, u"lunga"_s, [finita](Avanzamento &a) {
        a.setParte(2, 5);
        while (!a.annullato())
            QThread::msleep(1);
        *finita = true;
    });
    EXPECT_FALSE(fatta);
    EXPECT_TRUE(QTest::qWaitFor([&] { return finita->load(); }));
}

TEST_F(ProvaElementi, EliminaSoloLeProprie) {
    i.esegui(
        u"DELETE FROM Decorazioni WHERE Tipo=3 AND ID<>171; UPDATE Decorazioni SET Tipo=3, File='a.gif' WHERE ID=171;"
        "INSERT INTO Decorazioni (File, Tipo) VALUES ('b.gif', 3)"_s);
    Elementi form(i.ambiente, nullptr);
    clicca(form, "RB1(2)");
    ASSERT_EQ(grid(form).Rows(), 2);
    Guida guida;
    guida.quando("AnteprimaImmagini", [](QWidget &w) {
        EXPECT_EQ(anteprimaFinita(w).testo(), u"File non trovato.\na.gif"_s);
        w.close();
    });
    clicca(form, "PushButton3");
    EXPECT_EQ(premi(form, "PushButton1"), u"Impossibile cancellare Immagini\npreimpostate nel software !"_s);
    grid(form).seleziona(1);
    EXPECT_EQ(premi(form, "PushButton1"), u"Cancello immagine evidenziata ?"_s);
    EXPECT_EQ(grid(form).Rows(), 2);
    QString fine;
    guida.messaggio(nullptr, 1).messaggio(&fine);
    clicca(form, "PushButton1");
    EXPECT_EQ(fine, u"Immagine cancellata !"_s);
    EXPECT_EQ(grid(form).Rows(), 1);
    EXPECT_EQ(i.valore(u"SELECT count(*) FROM Decorazioni WHERE ID>171"_s).toInt(), 0);
}

TEST_F(ProvaElementi, CategoriaVuota) {
    i.esegui(u"DELETE FROM Decorazioni WHERE Tipo=2"_s);
    Elementi form(i.ambiente, nullptr);
    clicca(form, "RB1(1)");
    EXPECT_EQ(trova<AnteprimaImmagine>(form, "Image1").testo(), u"Nessuna immagine in questa categoria"_s);
    clicca(form, "PushButton1");
    clicca(form, "PushButton3");
    EXPECT_EQ(aggiungi(form, immagine(u"z.bmp"_s)), u"Memorizzazione e Copia effettuate !"_s);
    EXPECT_EQ(grid(form).Rows(), 1);
}

TEST_F(ProvaElementi, UnDiscoMutoNonFermaLaForm) {
    const auto sistema = std::make_shared<FintoSistema>();
    sistema->muta = i.cartella();
    i.ambiente.percorsi = Percorsi(sistema);
    QElapsedTimer tempo;
    tempo.start();
    Elementi form(i.ambiente, nullptr);
    form.show();
    grid(form).seleziona(1);
    EXPECT_LT(tempo.elapsed(), 1500);
    EXPECT_TRUE(anteprimaFinita(form).testo().startsWith(u"La cartella non risponde."_s));
    sistema->risveglia();
}

} // namespace
} // namespace zuvora
