#include "installer/copia/Raccolta.h"

#include "installer/Contenuto.h"

#include "shell/logic/FileAtomico.h"
#include "shell/logic/Percorsi.h"
#include "shell/logic/TestoAnsi.h"
#include "shell/store/NomiFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <algorithm>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// SHA-256 of the pictures, sounds and texts that come with the product, by their names.
QHash<QString, QByteArray> prodotto() {
    QHash<QString, QByteArray> impronte;
    const QList<QByteArray> righe = improntePredefinite().split('\n');
    for (const QByteArray &riga : righe)
        impronte.insert(QString::fromUtf8(riga.mid(riga.indexOf(' ') + 1)), riga.left(riga.indexOf(' ')));
    return impronte;
}

bool delProdotto(const QString &nome, const QString &percorso) {
    static const QHash<QString, QByteArray> impronte = prodotto();
    const auto nota = impronte.constFind(nome);
    QFile file(percorso);
    QCryptographicHash somma(QCryptographicHash::Sha256);
    return nota != impronte.constEnd() && file.open(QIODevice::ReadOnly) && somma.addData(&file) &&
           somma.result().toHex() == *nota;
}

bool finisce(const QString &nome, std::initializer_list<QLatin1StringView> code) {
    return std::ranges::any_of(code, [&](auto coda) { return nome.endsWith(coda, Qt::CaseInsensitive); });
}

// The program, other copies, and what the engine or this tool keeps only for a while.
bool daLasciare(const QString &nome) {
    const bool programma = !nome.contains(u'/') && (nome == "zuvora"_L1 || nome.startsWith("zuvora-"_L1) ||
                                                    (nome.startsWith("libzuvora-"_L1) && nome.endsWith(".so"_L1)));
    return programma || nome.startsWith("plugins/"_L1) || nome.contains(".zuvora-installa"_L1) ||
           finisce(nome, {"-journal"_L1, "-wal"_L1, "-shm"_L1, ".zuvora"_L1, ".parziale"_L1, ".lock"_L1});
}

bool archivioDellaSala(const QString &nome) {
    return nome.compare(nomi::archivio, Qt::CaseInsensitive) == 0 ||
           QFileInfo(nome).fileName().compare(nomi::archivioTotem, Qt::CaseInsensitive) == 0;
}

void prendi(Raccolta &raccolta, const QString &cartella, const QString &prefisso, const QString &esclusa) {
    QDirIterator voce(cartella, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (voce.hasNext()) {
        const QString percorso = voce.next();
        const QString relativo = percorso.mid(cartella.size() + 1);
        const QString nome = prefisso + relativo;
        if (daLasciare(relativo) || archivioDellaSala(relativo) ||
            (!esclusa.isEmpty() && percorso.startsWith(esclusa)) || delProdotto(nome, percorso))
            continue;
        if (nomeAmmesso(nome))
            raccolta.file += {nome, percorso};
        else
            raccolta.fuori += percorso;
    }
}

struct Colonna {
    QLatin1StringView tabella;
    QLatin1StringView nome;
};

// Files that the rows name.
QStringList nominati(Database &zuvora) {
    QList<Colonna> colonne{{"ConfigurazioneTotem"_L1, "SfondoTotem"_L1},
                           {"Servizi"_L1, "Percorsofoto"_L1},
                           {"DinDon"_L1, "DinDon"_L1},
                           {"Configurazione"_L1, "playlistFoto"_L1},
                           {"Configurazione"_L1, "playlistVideo"_L1}};
    for (const Tabella &tabella : archivioZuvora.tabelle)
        if (tabella.nome.startsWith("Layout"_L1))
            colonne += {tabella.nome, "PercorsoImmagine"_L1};
    QStringList percorsi;
    for (const Colonna &c : std::as_const(colonne))
        for (const QStringList &riga : zuvora.leggiTesti(u"SELECT [%1] FROM [%2]"_s.arg(c.nome, c.tabella)))
            percorsi += riga.first();
    return percorsi;
}

void cercaFuori(Raccolta &raccolta, const QString &cartella, QStringList percorsi) {
    for (const DaCopiare &file : std::as_const(raccolta.file))
        if (finisce(file.nome, {".zvi"_L1, ".zvv"_L1}))
            percorsi += daAnsi(leggiFile(file.percorso).contenuto).split(u'\n');
    const Percorsi servizio;
    for (const QString &grezzo : std::as_const(percorsi)) {
        const QString scritto = grezzo.trimmed();
        const auto nativo = servizio.nativo(scritto);
        const bool dentro = nativo && (nativo->startsWith(cartella + u'/') ||
                                       (!raccolta.totem.isEmpty() && nativo->startsWith(raccolta.totem + u'/')));
        if ((scritto.contains(u'/') || scritto.contains(u'\\')) && !dentro)
            raccolta.fuori += scritto;
    }
    raccolta.fuori.removeDuplicates();
}
} // namespace

Raccolta raccogli(const QString &cartella, Database &zuvora) {
    Raccolta raccolta;
    const Percorsi percorsi;
    const auto righe = zuvora.leggiTesti(u"SELECT PercorsoReteTotem FROM ConfigurazioneTotem LIMIT 1"_s);
    const QString scritto = righe.isEmpty() ? QString() : righe.first().first();
    const auto archivio = percorsi.esamina(percorsi.unisci(scritto, nomi::archivioTotem));
    if (!scritto.isEmpty() && archivio.specie == Specie::File)
        raccolta.totem = QFileInfo(archivio.percorso).path();
    const bool interno = raccolta.totem.startsWith(cartella + u'/');
    const QString totemCopia = cartellaTotemCopia + "/"_L1;
    if (!raccolta.totem.isEmpty()) {
        const QString dentro = interno ? raccolta.totem.mid(cartella.size() + 1) + u'/' : totemCopia;
        raccolta.nomeTotem = dentro + nomi::archivioTotem.toString();
        if (!interno)
            prendi(raccolta, raccolta.totem, totemCopia, {});
    }
    // A folder of the kiosk that is no longer the kiosk's would take the place of the one that is.
    const bool altro = !raccolta.totem.isEmpty() && !interno;
    prendi(raccolta, cartella, {}, altro ? cartella + u'/' + totemCopia : QString());
    cercaFuori(raccolta, cartella, nominati(zuvora));
    return raccolta;
}

} // namespace zuvora::installa
