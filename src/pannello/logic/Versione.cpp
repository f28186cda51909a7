#include "pannello/logic/Versione.h"

#include "shell/logic/FileAtomico.h"
#include "shell/store/Data.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"
#include "shell/store/Riga.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array<QStringView, 5> versioniPrecedenti = {u"3.1.0", u"3.1.6", u"3.1.8", u"3.1.9", u"3.1.10"};
constexpr QStringView prefisso = u"Versione ";

} // namespace

bool versioneConosciuta(QStringView breve) {
    return std::find(versioniPrecedenti.begin(), versioniPrecedenti.end(), breve) != versioniPrecedenti.end();
}

std::optional<QString> versioneDaAggiornare(QStringView etichetta) {
    if (!etichetta.startsWith(prefisso))
        return std::nullopt;
    const QStringView breve = etichetta.mid(prefisso.size());
    if (!versioneConosciuta(breve))
        return std::nullopt;
    return breve.toString();
}

void conservaArchivio(const QString &cartella, const QString &versione) {
    const QFileInfo archivio(percorsoArchivio(cartella));
    const QString copia = u"%1/%2-%3.mdb"_s.arg(archivio.path(), archivio.completeBaseName(), versione);
    const QString parziale = copia + u".parziale"_s;
    QFile::remove(parziale);
    try {
        Database origine = Database::apriInLettura(archivio.filePath());
        Database::crea(parziale).copiaDa(origine);
        std::error_code errore;
        std::filesystem::rename(QFileInfo(parziale).filesystemFilePath(), QFileInfo(copia).filesystemFilePath(),
                                errore);
        if (errore)
            throw EngineError(Errore::PercorsoFile,
                              u"La copia «%1» non si può scrivere: %2"_s.arg(QDir::toNativeSeparators(copia),
                                                                             motivoSistema(errore.value())));
    } catch (...) {
        QFile::remove(parziale);
        throw;
    }
}

void AggiornaArchivio(const QString &cartella) {
    Database archivio = Database::OpenDatabase(percorsoArchivio(cartella));
    try {
        auto campi = archivio.TableDefs().Item(u"ConfigurazioneTotem"_s).Fields();
        campi.Append({u"TestoVisibile"_s, TipoCampo::Booleano});
        campi.Append({u"DataVisibile"_s, TipoCampo::Booleano});
    } catch (const EngineError &) {
        // The columns may be there already; the version is raised all the same.
    }
    archivio.Close();
}

void scriviVersioneCorrente(const QString &cartella) {
    scriviRiga(cartella, u"Versione"_s,
               {{u"Numero", versioneCorrente.toString()}, {u"Data", u"del 03 Ottobre 2013"_s}});
}

} // namespace zuvora
