// The designer's canvas: a layout of 70 rows with 25 decorations and a background of 1920 x 1080, from its table to the
// painted form, and one move of the mouse with an outline on it.
#include "Applicazione.h"
#include "designer/forms/Form1.h"
#include "designer/logic/ImmaginiQt.h"
#include "designer/logic/LetturaLayout.h"
#include "designer/logic/ScritturaLayout.h"
#include "shell/host/QtDialoghi.h"
#include "shell/host/QtPiattaforma.h"
#include "shell/host/Stile.h"
#include "shell/store/Data.h"

#include <QDir>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

constexpr const char *Schema = R"(
PRAGMA synchronous=OFF;
CREATE TABLE Layout1(DescCampo TEXT, Top REAL, [Left] REAL, Testo TEXT, NomeFont TEXT, DimFont REAL, FontBold BOOLEAN,
 FontItalic BOOLEAN, ColoreSfondo INTEGER, ColoreTesto INTEGER, Allineamento INTEGER, Altezza REAL, Larghezza REAL,
 Visibile BOOLEAN, PercorsoImmagine TEXT, SfondoTestoTrasparente BOOLEAN);
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<70)
 INSERT INTO Layout1(DescCampo) SELECT 'Riga ' || i FROM n;
CREATE TABLE Configurazione(MisuraFormLeft REAL, MisuraFormTop REAL);
INSERT INTO Configurazione VALUES(0, 0);
CREATE TABLE TG(descrizione TEXT, percorsourl TEXT);
)";

QStringList decorazioni() {
    QStringList file;
    for (const QString &cartella : {u"Cornici"_s, u"Banner"_s, u"Elementi"_s})
        for (const QFileInfo &info :
             QDir(QStringLiteral(ZUVORA_DATI "/ZuvoraDecorazioni/") + cartella).entryInfoList(QDir::Files))
            file << info.filePath();
    return file;
}

// Everything visible, spread over the canvas.
DisplayLayout layoutPieno(int visibili) {
    DisplayLayout layout(u"Layout1"_s);
    const QStringList file = decorazioni();
    int numero = 0;
    for (LayoutElement &e : layout) {
        e.visibile = ++numero <= visibili || e.tipo == TipoElemento::MP1;
        if (!staSullaTela(e.tipo))
            continue;
        e.area.left = (numero * 3571) % 24000;
        e.area.top = (numero * 2287) % 12000;
        if (e.tipo != TipoElemento::Image1)
            continue;
        e.area.width = e.area.height = 2400;
        e.immagine = file.at((e.indice * 7) % file.size());
        layout.setPiano(e.indice, e.indice % 2 == 0);
    }
    layout.Label2() = QStringLiteral(ZUVORA_DATI "/ZuvoraSfondiHD/FH_grigio_8post_.jpg");
    return layout;
}

// A settings database with one layout, and what forms are given.
struct Banco {
    explicit Banco(int visibili = righeLayout) {
        misura::preparaApplicazione();
        sqlite3 *db = nullptr;
        sqlite3_open(percorsoArchivio(cartella.path()).toUtf8().constData(), &db);
        sqlite3_exec(db, Schema, nullptr, nullptr, nullptr);
        sqlite3_close(db);
        valori.PercorsoApplicazione = cartella.path();
        DisplayLayout pieno = layoutPieno(visibili);
        SalvaLayout(pieno, cartella.path());
    }
    QTemporaryDir cartella;
    QtDialoghi dialoghi;
    QtPiattaforma piattaforma{"zuvora-misura"};
    ValoriCondivisi valori;
    Ambiente ambiente{valori, dialoghi, piattaforma};
};

// Takes every path for a picture and decodes none.
class SenzaImmagini final : public CaricatoreImmagini {
    bool carica(const QString &) override { return true; }
};

void righe(benchmark::State &stato) {
    Banco banco;
    SenzaImmagini immagini;
    for (auto _ : stato) {
        DisplayLayout layout(u"Layout1"_s);
        benchmark::DoNotOptimize(CaricaLayout(layout, immagini, banco.cartella.path()));
    }
}

void immagini(benchmark::State &stato) {
    Banco banco;
    DisplayLayout layout(u"Layout1"_s);
    SenzaImmagini nessuna;
    CaricaLayout(layout, nessuna, banco.cartella.path());
    for (auto _ : stato) {
        ImmaginiQt nuove;
        for (const LayoutElement &e : layout)
            nuove.prepara(e.immagine);
        for (const LayoutElement &e : layout)
            if (!e.immagine.isEmpty())
                benchmark::DoNotOptimize(nuove.carica(e.immagine));
    }
}

void pittura(benchmark::State &stato) {
    Banco banco;
    DisplayLayout layout(u"Layout1"_s);
    ImmaginiQt decodificate;
    CaricaLayout(layout, decodificate, banco.cartella.path());
    QImage tela(1920, 1080, QImage::Format_RGB32);
    for (auto _ : stato) {
        Scena scena(layout, decodificate, tela.size());
        QPainter p(&tela);
        scena.mostra(p, tela.rect(), 1);
    }
}

// Twenty-five photos and a background as people add them, decorations of the size at which a photo stands on a screen.
void fotografie(const Banco &banco) {
    QImage foto(1600, 1200, QImage::Format_RGB32);
    for (int y = 0; y < foto.height(); ++y)
        for (int x = 0; x < foto.width(); ++x)
            foto.setPixel(x, y, qRgb(x * y % 251, (x + 3 * y) % 256, (x ^ y) % 256));
    DisplayLayout layout = layoutPieno(righeLayout);
    for (LayoutElement &e : layout) {
        if (e.tipo != TipoElemento::Image1)
            continue;
        e.immagine = banco.cartella.filePath(u"%1.jpg"_s.arg(e.indice));
        e.area.width = 4800;
        e.area.height = 3600;
        foto.save(e.immagine, "JPG", 85);
    }
    SalvaLayout(layout, banco.cartella.path());
}

// From the table to the painted form. `fili`: how many threads decode and stretch.
void apri(benchmark::State &stato, int fili, bool foto) {
    const Banco banco;
    if (foto)
        fotografie(banco);
    for (auto _ : stato) {
        DisplayLayout layout(u"Layout1"_s);
        ImmaginiQt nuove({1920, 1920}, fili);
        CaricaLayout(layout, nuove, banco.cartella.path());
        Form1 form(banco.ambiente, layout, nuove, {}, dimensioneTela(2), nullptr);
        form.show();
        form.repaint();
        QCoreApplication::processEvents();
    }
}

template <bool foto> void apertura(benchmark::State &stato) {
    apri(stato, QThread::idealThreadCount(), foto);
    stato.counters["limite"] = 0.65;
}

template <bool foto> void aperturaUnFilo(benchmark::State &stato) {
    apri(stato, 1, foto);
}

// Counts the paintings of the outline.
class Conta : public QObject {
public:
    int pitture = 0;
    bool eventFilter(QObject *, QEvent *e) override {
        pitture += e->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

void invia(Form1 &form, QEvent::Type tipo, QPoint p, Qt::MouseButton bottone) {
    QMouseEvent evento(tipo, p, form.mapToGlobal(QPointF(p)), bottone, Qt::LeftButton, Qt::NoModifier);
    QWidget *dove = tipo == QEvent::MouseButtonPress ? form.childAt(p) : &form;
    QCoreApplication::sendEvent(dove, &evento);
}

// From the event to the repainted form. The range is the number of visible rows.
void mossa(benchmark::State &stato) {
    Banco banco(static_cast<int>(stato.range(0)));
    DisplayLayout layout(u"Layout1"_s);
    ImmaginiQt nuove;
    CaricaLayout(layout, nuove, banco.cartella.path());
    layout.portaAvanti(DisplayLayout::postoDi(TipoElemento::MP1));
    layout.elemento(TipoElemento::MP1).area = {9000, 3000, 12000, 8000};
    Form1 form(banco.ambiente, layout, nuove, {}, dimensioneTela(2), nullptr);
    form.show();
    form.repaint();
    QCoreApplication::processEvents();
    Conta conta;
    form.findChild<QWidget *>(u"Contorno"_s)->installEventFilter(&conta);
    const QPoint presa(1000, 400);
    invia(form, QEvent::MouseButtonPress, presa, Qt::LeftButton);
    QCoreApplication::processEvents();
    conta.pitture = 0;
    int passo = 0;
    int mosse = 0;
    for (auto _ : stato) {
        passo = (passo + 7) % 300;
        ++mosse;
        invia(form, QEvent::MouseMove, presa + QPoint(passo, passo / 2), Qt::NoButton);
        QCoreApplication::processEvents();
    }
    if (conta.pitture < mosse)
        stato.SkipWithError("not every move was painted");
    invia(form, QEvent::MouseButtonRelease, presa, Qt::LeftButton);
}

// A panel that follows the mouse, painted again with all that lies over and under it.
void pannello(benchmark::State &stato) {
    Banco banco;
    DisplayLayout layout(u"Layout1"_s);
    ImmaginiQt nuove;
    CaricaLayout(layout, nuove, banco.cartella.path());
    Scena scena(layout, nuove, {1920, 1080});
    QImage tela(1920, 1080, QImage::Format_RGB32);
    QPainter p(&tela);
    scena.mostra(p, tela.rect(), 1);
    const int posto = DisplayLayout::postoDi(TipoElemento::Pannello1, 2);
    for (auto _ : stato) {
        double &left = layout[posto].area.left;
        left = left > 15000 ? 0 : left + 105;
        scena.mostra(p, scena.aggiorna(posto), 1);
    }
}

double minimo(const std::vector<double> &v) {
    return *std::min_element(v.begin(), v.end());
}

void comune(benchmark::internal::Benchmark *b) {
    b->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ComputeStatistics("min", minimo);
}

BENCHMARK(righe)->Name("Tela/righe")->Apply(comune);
BENCHMARK(immagini)->Name("Tela/immagini")->Apply(comune);
BENCHMARK(pittura)->Name("Tela/pittura")->Apply(comune);
BENCHMARK(apertura<false>)->Name("Tela/apertura/nostro")->Apply(comune);
BENCHMARK(aperturaUnFilo<false>)->Name("Tela/apertura/metro")->Apply(comune);
BENCHMARK(apertura<true>)->Name("Tela/aperturaFoto/nostro")->Apply(comune);
BENCHMARK(aperturaUnFilo<true>)->Name("Tela/aperturaFoto/metro")->Apply(comune);
BENCHMARK(mossa)->Name("Tela/mossa")->Arg(10)->Arg(righeLayout)->Apply(comune);
BENCHMARK(pannello)->Name("Tela/pannello")->Apply(comune);

} // namespace
