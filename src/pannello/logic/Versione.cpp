#include "pannello/logic/Versione.h"

#include "shell/store/Data.h"
#include "shell/store/Database.h"
#include "shell/store/EngineError.h"
#include "shell/store/Riga.h"

#include <QDir>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array<QStringView, 5> VersioniPrecedenti = {u"3.1.0", u"3.1.6", u"3.1.8", u"3.1.9", u"3.1.10"};
constexpr QStringView Prefisso = u"Versione ";

} // namespace

bool versioneConosciuta(QStringView breve) {
    return std::find(VersioniPrecedenti.begin(), VersioniPrecedenti.end(), breve) != VersioniPrecedenti.end();
}

std::optional<QString> versioneDaAggiornare(QStringView etichetta) {
    if (!etichetta.startsWith(Prefisso))
        return std::nullopt;
    const QStringView breve = etichetta.mid(Prefisso.size());
    if (!versioneConosciuta(breve))
        return std::nullopt;
    return breve.toString();
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
    scriviRiga(cartella, u"Versione"_s, {{u"Numero", versioneCorrente.toString()}, {u"Data", u"del 03 Ottobre 2013"_s}});
}

} // namespace zuvora
