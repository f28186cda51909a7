#include "installer/importa/Travaso.h"

#include "installer/Csv.h"
#include "installer/Percorsi.h"

#include "shell/store/EngineError.h"

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qsizetype righeAllaVolta = 500;

// Amounts of money keep all their digits only as texts.
QString tipoSql(TipoAccess tipo) {
    switch (tipo) {
    case TipoAccess::Logico:
        return u"BOOLEAN"_s;
    case TipoAccess::Intero:
        return u"INTEGER"_s;
    case TipoAccess::Reale:
        return u"REAL"_s;
    case TipoAccess::Valuta:
        return u"TEXT CURRENCY"_s;
    case TipoAccess::Data:
        return u"DATETIME TEXT"_s;
    case TipoAccess::Testo:
    case TipoAccess::Byte:
        return u"TEXT"_s;
    }
    return u"TEXT"_s;
}

QString nome(const QString &n) {
    return u'`' + QString(n).replace(u'`', "``"_L1) + u'`';
}

const Tabella *nostra(const Archivio &archivio, const QString &cercata) {
    for (const Tabella &t : archivio.tabelle)
        if (cercata.compare(t.nome, Qt::CaseInsensitive) == 0)
            return &t;
    return nullptr;
}

bool numeroVero(const QString &testo) {
    bool riuscito = false;
    const double n = testo.toDouble(&riuscito);
    return riuscito ? n != 0 : testo.compare("true"_L1, Qt::CaseInsensitive) == 0;
}

} // namespace

Travaso::Travaso(const Archivio &archivio, const QString &file) : m_archivio(archivio), m_db(Database::crea(file)) {
    m_db.esegui(u"PRAGMA journal_mode = MEMORY; BEGIN IMMEDIATE"_s);
    m_db.esegui(QString::fromUtf8(schemaDi(archivio)));
}

void Travaso::creaTabella(const TabellaAccess &t) {
    QStringList colonne;
    for (const ColonnaAccess &c : t.colonne)
        colonne << nome(c.nome) + u' ' + tipoSql(c.tipo);
    m_db.esegui(u"CREATE TABLE %1 (%2)"_s.arg(nome(t.nome), colonne.join(u',')));
    resoconto.note << u"La tabella %1 non è del programma: è stata portata com'era."_s.arg(t.nome);
}

// Adds the columns that our table lacks, and prepares the statement for the rows.
void Travaso::allinea(const TabellaAccess &t) {
    QHash<QString, QString> tipi;
    m_chiave = -1;
    QString chiave;
    for (const QStringList &c : m_db.leggiTesti(u"SELECT name, type, pk FROM pragma_table_info(%1)"_s.arg(
             u'\'' + QString(t.nome).replace(u'\'', "''"_L1) + u'\''))) {
        tipi[c[0].toCaseFolded()] = c[1].toUpper();
        if (c[2] == u"1"_s)
            chiave = c[0];
    }
    QStringList colonne;
    QStringList senzaChiave;
    m_logica.clear();
    for (const ColonnaAccess &c : t.colonne) {
        if (!tipi.contains(c.nome.toCaseFolded())) {
            m_db.esegui(u"ALTER TABLE %1 ADD COLUMN %2 %3"_s.arg(nome(t.nome), nome(c.nome), tipoSql(c.tipo)));
            tipi[c.nome.toCaseFolded()] = tipoSql(c.tipo);
            resoconto.note << u"La colonna %2 della tabella %1 non è del programma: è stata portata com'era."_s.arg(
                t.nome, c.nome);
        }
        if (c.nome.compare(chiave, Qt::CaseInsensitive) == 0)
            m_chiave = colonne.size();
        else
            senzaChiave << nome(c.nome);
        colonne << nome(c.nome);
        m_logica << (tipi[c.nome.toCaseFolded()] == "BOOLEAN"_L1);
    }
    const auto istruzione = [&](const QStringList &quali) {
        return u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(nome(t.nome), quali.join(u','),
                                                        QStringList(quali.size(), u"?"_s).join(u','));
    };
    m_inserisci = istruzione(colonne);
    m_inserisciSenzaChiave = istruzione(senzaChiave);
}

void Travaso::tabella(const TabellaAccess &t) {
    scrivi();
    if (nostra(m_archivio, t.nome) != nullptr)
        ++m_nostre;
    else
        creaTabella(t);
    QSet<QString> &colonne = m_viste[t.nome.toCaseFolded()];
    for (const ColonnaAccess &c : t.colonne)
        colonne.insert(c.nome.toCaseFolded());
    allinea(t);
    resoconto.tabelle << Resoconto::Voce{t.nome, 0};
}

bool Travaso::aveva(const QString &tabella, const QString &colonna) const {
    return m_viste.value(tabella.toCaseFolded()).contains(colonna.toCaseFolded());
}

void Travaso::riga(const QStringList &valori) {
    QStringList riga = valori;
    for (qsizetype i = 0; i < riga.size() && i < m_logica.size(); ++i)
        if (m_logica[i] && !riga[i].isNull())
            riga[i] = numeroVero(riga[i]) ? u"1"_s : u"0"_s;
    ++resoconto.tabelle.last().righe;
    m_attesa << riga;
    if (m_attesa.size() >= righeAllaVolta)
        scrivi();
}

void Travaso::scrivi() {
    for (const QStringList &riga : std::exchange(m_attesa, {})) {
        try {
            m_db.eseguiPerRighe(m_inserisci, {riga});
        } catch (const EngineError &) {
            if (m_chiave < 0)
                throw;
            // Two rows of one number: the second gets a number of its own.
            QStringList senza = riga;
            senza.removeAt(m_chiave);
            m_db.eseguiPerRighe(m_inserisciSenzaChiave, {senza});
            resoconto.note << u"Tabella %1: il numero %2 c'era due volte; una riga ha un numero nuovo."_s.arg(
                resoconto.tabelle.last().tabella, riga[m_chiave]);
        }
    }
}

void Travaso::concludi(const QString &cartella) {
    scrivi();
    for (const Tabella &t : m_archivio.tabelle) {
        if (m_viste.contains(QString(t.nome).toCaseFolded()))
            continue;
        const Csv csv = leggiCsv(righeDi(t.righe), t.righe);
        QList<QStringList> righe = csv.righe;
        for (QStringList &riga : righe)
            for (QString &valore : riga)
                valore = espandi(valore, cartella);
        if (!righe.isEmpty())
            m_db.eseguiPerRighe(
                u"INSERT INTO [%1] ([%2]) VALUES (%3)"_s.arg(t.nome, csv.colonne.join(u"],["_s),
                                                             QStringList(csv.colonne.size(), u"?"_s).join(u',')),
                righe);
        resoconto.note << u"La tabella %1 mancava: è quella di un'installazione nuova."_s.arg(t.nome);
    }
    m_db.esegui(u"COMMIT"_s);
}

} // namespace zuvora::installa
