#include "shell/host/CarattereCasa.h"

#include <QFile>
#include <QFontDatabase>
#include <QtEndian>
#include <array>
#include <fontconfig/fontconfig.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

const QString famiglia = u"Tahoma"_s;
constexpr std::array<const char *, 2> fileCarattere = {"/usr/share/wine/fonts/tahoma.ttf",
                                                       "/usr/share/wine/fonts/tahomabd.ttf"};
constexpr qsizetype intestazione = 12;  // bytes before the directory of tables
constexpr qsizetype lunghezzaVoce = 16; // bytes of one entry of it
constexpr qsizetype peso = 4;           // in the table OS/2
constexpr qsizetype postoSelezione = 62;
constexpr quint16 grassetto = 0x0020;
constexpr quint16 misureTipografiche = 0x0080;
constexpr quint16 quasiGrassetto = 600;

quint16 leggi(const QByteArray &dati, qsizetype posto) {
    return qFromBigEndian<quint16>(dati.constData() + posto);
}

void scrivi(QByteArray &dati, qsizetype posto, quint16 valore) {
    qToBigEndian(valore, dati.data() + posto);
}

// Where the directory tells of a table; -1 when it doesn't.
qsizetype voceDi(const QByteArray &file, const char *tabella) {
    if (file.size() < intestazione)
        return -1;
    const int voci = leggi(file, 4);
    for (qsizetype voce = intestazione;
         voce < intestazione + voci * lunghezzaVoce && voce + lunghezzaVoce <= file.size(); voce += lunghezzaVoce)
        if (QByteArrayView(file).sliced(voce, 4) == tabella)
            return voce;
    return -1;
}

// Where the table OS/2 begins; -1 when there is none that can be read whole.
qsizetype tabellaOs2(const QByteArray &file) {
    const qsizetype voce = voceDi(file, "OS/2");
    if (voce < 0)
        return -1;
    const auto inizio = qsizetype{qFromBigEndian<quint32>(file.constData() + voce + 8)};
    return inizio + postoSelezione + 2 <= file.size() ? inizio : -1;
}

void carica(const char *percorso) {
    QFile file(QString::fromLatin1(percorso));
    if (file.open(QIODevice::ReadOnly))
        QFontDatabase::addApplicationFontFromData(carattereCorretto(file.readAll()));
}

} // namespace

QByteArray carattereCorretto(QByteArray file) {
    const qsizetype os2 = tabellaOs2(file);
    if (os2 < 0)
        return file;
    quint16 selezione = leggi(file, os2 + postoSelezione) & ~misureTipografiche;
    if ((selezione & grassetto) != 0) {
        selezione &= ~grassetto;
        scrivi(file, os2 + peso, quasiGrassetto);
    }
    scrivi(file, os2 + postoSelezione, selezione);
    if (const qsizetype voce = voceDi(file, "EBLC"); voce >= 0)
        file.replace(voce, 4, "senz");
    return file;
}

std::future<void> avviaCaratteri() {
    return std::async(std::launch::async, [] { FcInit(); });
}

std::future<void> elencaCaratteri() {
    return std::async(std::launch::async, [] { QFontDatabase::hasFamily(famiglia); });
}

QFont carattereCasa() {
    static const bool caricato = [] {
        for (const char *percorso : fileCarattere)
            carica(percorso);
        return true;
    }();
    Q_UNUSED(caricato)
    QFont font(famiglia);
    font.setPointSizeF(8.25);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

} // namespace zuvora
