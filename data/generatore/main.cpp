// zuvora-disegna: draws the picture catalogue and writes its list.
#include "Catalogo.h"
#include "Paesaggi.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QSaveFile>
#include <QTextStream>

#include <array>
#include <stdexcept>

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace zuvora::disegna;

[[noreturn]] void fallisci(const QString &motivo) {
    throw std::runtime_error(motivo.toStdString());
}

QByteArray codificata(const QString &file, const QImage &immagine) {
    const bool foto = file.endsWith(u".jpg"_s);
    QByteArray dati;
    QBuffer buffer{&dati};
    QImageWriter scrittore{&buffer, foto ? "jpg" : "png"};
    scrittore.setQuality(foto ? 96 : 0); // 0 is the smallest PNG
    scrittore.setOptimizedWrite(true);
    if (!scrittore.write(foto ? immagine.convertToFormat(QImage::Format_RGB32) : immagine))
        fallisci(u"%1: %2"_s.arg(file, scrittore.errorString()));
    return dati;
}

void scrivi(const QString &percorso, const QByteArray &dati) {
    QSaveFile file{percorso};
    const bool riuscito = file.open(QIODevice::WriteOnly) && file.write(dati) == dati.size() && file.flush() &&
                          file.error() == QFileDevice::NoError && file.commit();
    if (!riuscito)
        fallisci(u"%1: %2"_s.arg(percorso, file.errorString()));
}

void scriviTutti(const Disegni &disegni, const QString &cartella) {
    if (!QDir{}.mkpath(cartella))
        fallisci(u"%1: cartella non creata"_s.arg(cartella));
    for (const Disegno &d : disegni)
        if (d.dipingi)
            scrivi(cartella + u'/' + d.file, codificata(d.file, d.dipingi()));
}

struct Categoria {
    int tipo;
    QStringView cartella;
    Disegni (*disegni)();
};
constexpr std::array<Categoria, 3> categorie{{
    {1, u"ZuvoraDecorazioni/Cornici", &cornici},
    {2, u"ZuvoraDecorazioni/Banner", &banner},
    {3, u"ZuvoraDecorazioni/Elementi", &elementi},
}};

// Returns how many decorations there are.
int disegnaTutto(const QString &cartella) {
    QByteArray elenco{"ID,File,Tipo\n"};
    int id = 0;
    for (const Categoria &c : categorie) {
        const Disegni disegni = c.disegni();
        scriviTutti(disegni, u"%1/%2"_s.arg(cartella, c.cartella));
        for (const Disegno &d : disegni)
            elenco += u"%1,%2,%3\n"_s.arg(++id).arg(d.file).arg(c.tipo).toUtf8();
    }
    scriviTutti(sfondi(), cartella + u"/ZuvoraSfondiHD"_s);
    scriviTutti(foto(), cartella + u"/esempio/Immagini"_s);
    scrivi(cartella + u"/decorazioni.csv"_s, elenco);
    return id;
}

// The film's frames, for the encoder that README.md tells.
void disegnaFilm(const QString &cartella) {
    Disegni quadri;
    for (int n = 0; n < fotogrammi; ++n)
        quadri.push_back({u"%1.png"_s.arg(n, 4, 10, QChar(u'0')), [n] { return fotogramma(n); }});
    scriviTutti(quadri, cartella);
}

} // namespace

int main(int quanti, char *argomenti[]) {
    // Fonts need an application, but no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication applicazione{quanti, argomenti};
    QTextStream errori{stderr};
    const QStringList parole = QGuiApplication::arguments();
    const bool film = parole.size() == 3 && parole.at(1) == u"--film"_s;
    if (parole.size() != 2 && !film) {
        errori << u"Uso: zuvora-disegna CARTELLA | zuvora-disegna --film CARTELLA\n"_s;
        return 2;
    }
    if (!carattereDisponibile()) {
        errori << u"Manca il carattere Liberation Sans: nessuna immagine disegnata.\n"_s;
        return 1;
    }
    try {
        if (film)
            disegnaFilm(parole.at(2));
        else
            QTextStream{stdout} << u"Decorazioni disegnate: %1\n"_s.arg(disegnaTutto(parole.at(1)));
    } catch (const std::exception &errore) {
        errori << QString::fromUtf8(errore.what()) << u'\n';
        return 1;
    }
    return 0;
}
