#include "installer/ControlloArchivio.h"

#include "installer/Csv.h"

#include "pannello/logic/Versione.h"
#include "shell/store/EngineError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
// What keeps the file from being read as a database, told from its first bytes; empty when nothing does. The engine
// itself would take an empty file for an empty database, and would make companions of one in WAL mode.
QString difettoDelFile(const QString &percorso) {
    const QFileInfo info(percorso);
    if (!info.exists())
        return u"il file manca"_s;
    if (!info.isFile())
        return u"non è un file"_s;
    if (info.size() == 0)
        return u"il file è vuoto, non è un archivio"_s;
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        return u"il file non si può leggere: verificare i permessi"_s;
    const QByteArray testa = file.read(20);
    if (testa.size() < 20 || !testa.startsWith(QByteArrayView("SQLite format 3\0", 16)))
        return u"il file non è un archivio"_s;
    if (testa[18] == 2 || testa[19] == 2)
        return u"l'archivio è in modo WAL, che in rete non funziona: avviare il programma per riportarlo al modo normale"_s;
    return {};
}

const QString danneggiato = u"l'archivio è danneggiato: ripristinarlo da una copia"_s;

QString frase(const EngineError &errore) {
    switch (errore.numero()) {
    case Errore::SolaLettura:
        return u"una scrittura è rimasta a metà: avviare il programma per ripristinare l'archivio"_s;
    case Errore::GiaAperto:
    case Errore::Bloccato:
        return u"l'archivio è occupato da un altro programma: chiuderlo e riprovare"_s;
    case Errore::NonDatabase:
    case Errore::FileDanneggiato:
        return danneggiato;
    default:
        return u"l'archivio non si può leggere (%1)"_s.arg(errore.dettaglio());
    }
}

QString sqlColonne(QStringView tabella) {
    return u"SELECT name FROM pragma_table_info('%1')"_s.arg(tabella.toString().replace(u'\'', "''"_L1));
}

QString versioneCorrente() {
    const Csv csv = leggiCsv(righeDi("Versione"_L1), u"Versione"_s);
    return csv.righe.first().at(csv.colonne.indexOf(u"Numero"_s));
}

QString attese(const Tabella &tabella) {
    const QString quante = tabella.minimo == 1 ? u"una"_s : QString::number(tabella.minimo);
    return tabella.minimo == tabella.massimo ? quante : u"almeno "_s + quante;
}
} // namespace

ControlloArchivio::ControlloArchivio(const Archivio &archivio, QString file)
    : m_archivio(archivio), m_file(std::move(file)) {}

void ControlloArchivio::segnala(const QString &difetto) {
    m_rapporto.difetti += QDir::toNativeSeparators(m_file) + u": "_s + difetto;
}

void ControlloArchivio::annota(const QString &nota) {
    m_rapporto.note += QDir::toNativeSeparators(m_file) + u": "_s + nota;
}

bool ControlloArchivio::ha(QLatin1StringView tabella, QLatin1StringView colonna) const {
    return m_colonne.value(QString(tabella).toLower()).contains(QString(colonna).toLower());
}

void ControlloArchivio::controlla(const std::function<void(Database &)> &altro) {
    if (!m_db)
        return;
    try {
        altro(*m_db);
    } catch (const EngineError &errore) {
        segnala(frase(errore));
    }
}

void ControlloArchivio::controlla() {
    const QString difetto = difettoDelFile(m_file);
    if (!difetto.isEmpty()) {
        segnala(difetto);
        return;
    }
    try {
        Database db = Database::apriInLettura(m_file);
        if (db.integro())
            m_db.emplace(std::move(db));
        else
            segnala(danneggiato);
    } catch (const EngineError &errore) {
        segnala(frase(errore));
    }
    controlla([this](Database &db) {
        for (const QStringList &tabella : db.leggiTesti(u"SELECT name FROM sqlite_master WHERE type = 'table'"_s))
            for (const QStringList &colonna : db.leggiTesti(sqlColonne(tabella.first())))
                m_colonne[tabella.first().toLower()] += colonna.first().toLower();
        controllaVersione();
        Database modello = Database::inMemoria();
        modello.esegui(QString::fromUtf8(schemaDi(m_archivio)));
        for (const Tabella &tabella : m_archivio.tabelle)
            controllaTabella(tabella, modello);
    });
}

void ControlloArchivio::controllaTabella(const Tabella &tabella, Database &modello) {
    if (!m_colonne.contains(QString(tabella.nome).toLower())) {
        segnala(u"manca la tabella %1"_s.arg(tabella.nome));
        return;
    }
    for (const QStringList &colonna : modello.leggiTesti(sqlColonne(QString(tabella.nome))))
        if (!ha(tabella.nome, QLatin1StringView(colonna.first().toLatin1())) && !puoMancare(tabella, colonna.first()))
            segnala(u"nella tabella %1 manca la colonna %2"_s.arg(tabella.nome, colonna.first()));
    controllaRighe(tabella);
}

// The upgrade at the program's start adds these to an older version. What a ticket prints is the user's choice.
bool ControlloArchivio::puoMancare(const Tabella &tabella, const QString &colonna) const {
    const bool tarda = colonna == "TestoVisibile"_L1 || colonna == "DataVisibile"_L1;
    return tabella.colonneLibere || (m_daAggiornare && tarda && tabella.nome == "ConfigurazioneTotem"_L1);
}

void ControlloArchivio::controllaVersione() {
    if (!ha("Versione"_L1, "Numero"_L1))
        return;
    const QList<QStringList> righe = m_db->leggiTesti(u"SELECT Numero FROM Versione LIMIT 1"_s);
    const QString etichetta = righe.isEmpty() ? QString() : righe.first().first();
    const auto vecchia = versioneDaAggiornare(etichetta);
    m_daAggiornare = vecchia.has_value();
    if (vecchia)
        annota(u"i dati sono della versione %1: avviare il programma per aggiornarli"_s.arg(*vecchia));
    else if (!righe.isEmpty() && etichetta != versioneCorrente())
        segnala(u"tabella Versione: «%1» non è una versione conosciuta"_s.arg(accorciato(etichetta)));
}

void ControlloArchivio::controllaRighe(const Tabella &tabella) {
    const int righe = m_db->leggiTesti(u"SELECT count(*) FROM [%1]"_s.arg(tabella.nome)).first().first().toInt();
    if (righe < tabella.minimo || (tabella.massimo != senzaLimite && righe > tabella.massimo))
        segnala(u"righe della tabella %1: %2 invece di %3"_s.arg(tabella.nome).arg(righe).arg(attese(tabella)));
}

} // namespace zuvora::installa
