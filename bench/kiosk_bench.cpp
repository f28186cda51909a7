// Opening of the kiosk's settings against a form of as many plain controls, the program's own (and, to compare, the
// platform's bare ones); the preview of twenty buttons against its picture alone; the window's longest standstill while
// a kiosk that never answers is asked.
#include "Applicazione.h"
#include "kiosk/forms/Impostatotem.h"
#include "kiosk/forms/LayoutTotem.h"
#include "kiosk/forms/VarieImpostaTotem.h"
#include "kit/FintoSistema.h"
#include "kit/InstallazioneProva.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QListWidget>
#include <QPainter>
#include <QTimer>
#include <algorithm>
#include <benchmark/benchmark.h>

namespace {

using namespace zuvora;
using namespace Qt::Literals::StringLiterals;

InstallazioneProva &installazione() {
    misura::preparaApplicazione();
    static auto *const fatta = [] {
        auto *nuova = new InstallazioneProva;
        nuova->esegui(u"UPDATE Servizi SET ServizioAttivo=1"_s);
        return nuova;
    }();
    return *fatta;
}

void mostraEDipingi(QWidget &finestra) {
    finestra.show();
    QApplication::processEvents();
}

void apriImpostatotem(benchmark::State &stato) {
    InstallazioneProva &i = installazione();
    Misura anteprima;
    for (auto _ : stato) {
        Impostatotem form(i.ambiente, anteprima, nullptr);
        mostraEDipingi(form);
    }
    stato.counters["limite"] = 1.5;
}

// As many controls of each kind, with the texts, entries and places of the form's own, but without its data and
// handlers.
template <class C> QWidget *copiaDi(const C &controllo, QWidget *padre, const QString &testo) {
    return new C(padre, "copia", testo.toUtf8().constData(), controllo.posto());
}

QWidget *copiaDelKit(const QWidget *controllo, QWidget *padre, Dialoghi &dialoghi) {
    if (const auto *c = qobject_cast<const Edit *>(controllo))
        return new Edit(padre, "copia", c->posto(), c->text().toUtf8().constData());
    if (const auto *c = qobject_cast<const CheckBox *>(controllo))
        return copiaDi(*c, padre, c->text());
    if (const auto *c = qobject_cast<const RadioButton *>(controllo))
        return copiaDi(*c, padre, c->text());
    if (const auto *c = qobject_cast<const Button *>(controllo))
        return copiaDi(*c, padre, c->text());
    if (const auto *c = qobject_cast<const ColorPicker *>(controllo))
        return new ColorPicker(padre, "copia", c->posto(), dialoghi);
    if (const auto *c = qobject_cast<const GroupBox *>(controllo))
        return copiaDi(*c, padre, c->title());
    if (const auto *c = qobject_cast<const ListBox *>(controllo)) {
        auto *copia = new ListBox(padre, "copia", c->posto());
        for (int riga = 0; riga < c->ListCount(); ++riga)
            copia->AddItem(c->List(riga));
        return copia;
    }
    if (const auto *c = qobject_cast<const PictureBox *>(controllo))
        return new PictureBox(padre, "copia", c->posto(), Disegno::Pulisci);
    if (const auto *c = qobject_cast<const Label *>(controllo))
        return copiaDi(*c, padre, c->Caption());
    return nullptr;
}

// The same of the platform's bare widgets.
QWidget *copiaNuda(const QWidget *controllo, QWidget *padre, Dialoghi &) {
    if (qobject_cast<const QLineEdit *>(controllo) != nullptr)
        return new QLineEdit(u"testo"_s, padre);
    if (qobject_cast<const QCheckBox *>(controllo) != nullptr)
        return new QCheckBox(u"testo"_s, padre);
    if (qobject_cast<const QRadioButton *>(controllo) != nullptr)
        return new QRadioButton(u"testo"_s, padre);
    if (qobject_cast<const QPushButton *>(controllo) != nullptr)
        return new QPushButton(u"testo"_s, padre);
    if (qobject_cast<const QGroupBox *>(controllo) != nullptr)
        return new QGroupBox(u"testo"_s, padre);
    if (const auto *c = qobject_cast<const QListWidget *>(controllo)) {
        auto *copia = new QListWidget(padre);
        for (int riga = 0; riga < c->count(); ++riga)
            copia->addItem(c->item(riga)->text());
        return copia;
    }
    return new QLabel(u"testo"_s, padre);
}

template <auto Copia> void apriSemplice(benchmark::State &stato) {
    InstallazioneProva &i = installazione();
    Misura anteprima;
    const Impostatotem modello(i.ambiente, anteprima, nullptr);
    QList<QWidget *> controlli = modello.findChildren<QWidget *>();
    controlli.removeIf([](const QWidget *c) { // the parts of a list
        return qobject_cast<const QAbstractScrollArea *>(c->parentWidget()) != nullptr ||
               qobject_cast<const QAbstractScrollArea *>(c->parentWidget()->parentWidget()) != nullptr;
    });
    for (auto _ : stato) {
        Form form(i.ambiente, "Semplice", "Semplice", {7215, 7575}, nullptr);
        QHash<const QWidget *, QWidget *> copie{{&modello, &form}};
        for (const QWidget *controllo : std::as_const(controlli)) {
            QWidget *copia = Copia(controllo, copie.value(controllo->parentWidget(), &form), i.dialoghi);
            if (copia == nullptr)
                continue;
            copia->setGeometry(controllo->geometry());
            copia->setVisible(!controllo->isHidden());
            copie.insert(controllo, copia);
        }
        mostraEDipingi(form);
    }
    stato.counters["controlli"] = static_cast<double>(controlli.size());
}

QString sfondoIntero() {
    static const QString percorso = [] {
        QImage sfondo(1920, 1080, QImage::Format_RGB32);
        for (int y = 0; y < sfondo.height(); ++y)
            for (int x = 0; x < sfondo.width(); ++x)
                sfondo.setPixel(x, y, qRgb(x & 255, y & 255, (x + y) & 255));
        const QString file = installazione().file(u"sfondo.bmp"_s);
        sfondo.save(file);
        return file;
    }();
    return percorso;
}

std::unique_ptr<LayoutTotem> anteprimaPiena() {
    InstallazioneProva &i = installazione();
    i.esegui(u"UPDATE ConfigurazioneTotem SET SfondoTotem='%1'"_s.arg(sfondoIntero()));
    RichiestaAnteprima richiesta{1, {}, true, true, {28800, 16200}};
    for (int servizio = 1; servizio <= serviziMassimi; ++servizio)
        richiesta.servizi << u"Prenotazione visite %1"_s.arg(servizio);
    return std::make_unique<LayoutTotem>(i.ambiente, richiesta, nullptr);
}

class SoloImmagine : public QWidget {
public:
    explicit SoloImmagine(const QPixmap &immagine) : m_immagine(immagine) { setFixedSize(immagine.size()); }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawPixmap(0, 0, m_immagine); }

private:
    QPixmap m_immagine;
};

double secondi(const std::function<void()> &lavoro) {
    QElapsedTimer orologio;
    orologio.start();
    lavoro();
    return static_cast<double>(orologio.nsecsElapsed()) / 1e9;
}

// Preview and picture in turns, so that a machine that is busy elsewhere slows both; of many turns the quickest of
// each.
void inTurni(benchmark::State &stato, int turni, const std::function<double()> &nostro,
             const std::function<double()> &metro) {
    double altro = 0;
    for (auto _ : stato) {
        double minimoNostro = nostro();
        double minimoMetro = metro();
        for (int turno = 1; turno < turni; ++turno) {
            minimoNostro = std::min(minimoNostro, nostro());
            minimoMetro = std::min(minimoMetro, metro());
        }
        stato.SetIterationTime(minimoNostro);
        altro += minimoMetro;
    }
    stato.counters["metro"] = altro * 1000 / static_cast<double>(stato.iterations());
    stato.counters["limite"] = 2;
}

void dipingiAnteprima(benchmark::State &stato) {
    const auto anteprima = anteprimaPiena();
    SoloImmagine immagine{QPixmap(sfondoIntero())};
    const auto ridipingi = [](QWidget &finestra) { return secondi([&] { finestra.repaint(); }); };
    mostraEDipingi(*anteprima);
    mostraEDipingi(immagine);
    inTurni(
        stato, 100, [&] { return ridipingi(*anteprima); }, [&] { return ridipingi(immagine); });
}

// From the made window to its first picture on the screen.
void mostraAnteprima(benchmark::State &stato) {
    installazione();
    const QPixmap immagine(sfondoIntero());
    const auto mostra = [](QWidget &finestra) { return secondi([&] { mostraEDipingi(finestra); }); };
    inTurni(
        stato, 20, [&] { return mostra(*anteprimaPiena()); },
        [&] {
            SoloImmagine sola(immagine);
            return mostra(sola);
        });
}

// The longest time between two beats of a 5 ms timer while `fino` isn't reached, milliseconds.
double fermoPiuLungo(const std::function<bool()> &fino) {
    double massimo = 0;
    QElapsedTimer dall_ultimo;
    QTimer battito;
    battito.setTimerType(Qt::PreciseTimer);
    QObject::connect(&battito, &QTimer::timeout, &battito, [&] {
        massimo = std::max(massimo, static_cast<double>(dall_ultimo.nsecsElapsed()) / 1e6);
        dall_ultimo.restart();
    });
    battito.start(5);
    dall_ultimo.start();
    while (!fino())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return massimo;
}

void totemMuto(benchmark::State &stato) {
    InstallazioneProva &i = installazione();
    i.esegui(u"UPDATE ConfigurazioneTotem SET PercorsoReteTotem='/lontano/Totem'"_s);
    for (auto _ : stato) {
        const auto sistema = std::make_shared<FintoSistema>();
        sistema->muta = u"/lontano"_s;
        Ambiente ambiente = i.ambiente;
        ambiente.percorsi = Percorsi(sistema);
        VarieImpostaTotem form(ambiente, nullptr);
        form.show();
        stato.counters["fermo_ms"] = fermoPiuLungo([&] { return !form.isVisible(); });
        sistema->risveglia();
        i.dialoghi.prendiBox();
    }
}

void formFerma(benchmark::State &stato) {
    installazione();
    for (auto _ : stato) {
        QDialog form;
        form.show();
        QElapsedTimer orologio;
        orologio.start();
        stato.counters["fermo_ms"] = fermoPiuLungo([&] { return orologio.elapsed() > 2000; });
    }
}

double minimo(const std::vector<double> &v) {
    return *std::min_element(v.begin(), v.end());
}

void comune(benchmark::internal::Benchmark *b) {
    b->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5)->ComputeStatistics("min", minimo);
}

void aTurni(benchmark::internal::Benchmark *b) {
    b->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1)->Repetitions(7)->ComputeStatistics("min", minimo);
}

BENCHMARK(apriImpostatotem)->Name("Totem/apertura/nostro")->Apply(comune);
BENCHMARK(apriSemplice<copiaDelKit>)->Name("Totem/apertura/metro")->Apply(comune);
BENCHMARK(apriSemplice<copiaNuda>)->Name("Totem/aperturaNuda")->Apply(comune);
BENCHMARK(dipingiAnteprima)->Name("Totem/anteprima/nostro")->Apply(aTurni);
BENCHMARK(mostraAnteprima)->Name("Totem/mostra/nostro")->Apply(aTurni);
BENCHMARK(totemMuto)->Name("Totem/muto")->Iterations(1)->Apply(comune);
BENCHMARK(formFerma)->Name("Totem/fermo")->Iterations(1)->Apply(comune);

} // namespace
