#include "installer/importa/PercorsiVecchi.h"

#include "installer/Percorsi.h"

#include "shell/logic/FileAtomico.h"
#include "shell/logic/Percorsi.h"

#include <QDir>
#include <QFileInfo>
#include <array>

namespace zuvora::installa {
using namespace Qt::Literals::StringLiterals;

namespace {
struct Colonna {
    QString tabella;
    QString colonna;
    bool rete = false; // kept in the form by which other machines reach it
};

QList<Colonna> colonne() {
    QList<Colonna> tutte = {{u"Configurazione"_s, u"dindon"_s, true},
                            {u"Configurazione"_s, u"playlistFoto"_s},
                            {u"Configurazione"_s, u"playlistVideo"_s},
                            {u"Configurazione"_s, u"cartellamp3"_s},
                            {u"ConfigurazioneTotem"_s, u"SfondoTotem"_s},
                            {u"ConfigurazioneTotem"_s, u"PercorsoReteTotem"_s},
                            {u"Servizi"_s, u"Percorsofoto"_s},
                            {u"DinDon"_s, u"DinDon"_s, true},
                            {u"LayoutBase"_s, u"PercorsoImmagine"_s}};
    for (int i = 1; i <= 10; ++i)
        tutte << Colonna{u"Layout%1"_s.arg(i), u"PercorsoImmagine"_s};
    return tutte;
}

// Folders that only an installation has: what stands before them is its own.
constexpr std::array segni{"/zuvoradecorazioni/"_L1, "/zuvorasfondihd/"_L1, "/suoni/"_L1};

QString piegato(const QString &percorso) {
    return QString(percorso).replace(u'\\', u'/').toCaseFolded();
}

bool pareUnPercorso(const QString &testo) {
    return testo.contains(u'\\') || testo.contains(u'/');
}

bool esiste(const QString &percorso) {
    const zuvora::Percorsi percorsi;
    return percorsoPossibile(percorso) && !percorsi.esamina(percorso).percorso.isEmpty();
}
} // namespace

PercorsiVecchi::PercorsiVecchi(QString nuova, QString preparazione)
    : m_nuova(std::move(nuova)), m_preparazione(std::move(preparazione)) {}

void PercorsiVecchi::impara(Database &zuvora) {
    for (const Colonna &c : colonne())
        for (const QStringList &riga :
             zuvora.leggiTesti(u"SELECT DISTINCT [%1] FROM [%2]"_s.arg(c.colonna, c.tabella))) {
            const QString percorso = piegato(riga.first());
            for (const QLatin1StringView segno : segni)
                if (const qsizetype dove = percorso.indexOf(segno); dove > 0 && !m_radici.contains(percorso.left(dove)))
                    m_radici << percorso.left(dove);
            const auto totem = "/totem"_L1;
            if (c.colonna == "PercorsoReteTotem"_L1 && percorso.endsWith(totem) &&
                !m_radici.contains(percorso.chopped(totem.size())) && m_radici.isEmpty())
                m_radici << percorso.chopped(totem.size());
        }
    // The longest first: one may lie below another.
    std::sort(m_radici.begin(), m_radici.end(), [](const QString &a, const QString &b) { return a.size() > b.size(); });
}

QString PercorsiVecchi::voltato(const QString &percorso, bool rete) const {
    const QString cercato = piegato(percorso);
    for (const QString &radice : m_radici) {
        if (!cercato.startsWith(radice + u'/'))
            continue;
        const QString resto = QString(percorso.mid(radice.size() + 1)).replace(u'\\', u'/');
        // Names on the old system had no case: the file's own spelling is taken.
        QString trovato = m_preparazione;
        for (const QString &parte : resto.split(u'/', Qt::SkipEmptyParts)) {
            const QStringList voci = QDir(trovato).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
            const auto voce = std::find_if(
                voci.begin(), voci.end(), [&](const QString &v) { return v.compare(parte, Qt::CaseInsensitive) == 0; });
            if (voce == voci.end())
                return percorso;
            trovato += u'/' + *voce;
        }
        return espandi((rete ? u"{RETE}"_s : u"{CARTELLA}"_s) + trovato.mid(m_preparazione.size()), m_nuova);
    }
    return percorso;
}

QStringList PercorsiVecchi::volta(Database &zuvora) {
    QStringList persi;
    for (const Colonna &c : colonne())
        for (const QStringList &riga :
             zuvora.leggiTesti(u"SELECT DISTINCT [%1] FROM [%2]"_s.arg(c.colonna, c.tabella))) {
            const QString &vecchio = riga.first();
            if (vecchio.isEmpty() || !pareUnPercorso(vecchio))
                continue;
            const QString nuovo = voltato(vecchio, c.rete);
            if (nuovo != vecchio)
                zuvora.eseguiPerRighe(u"UPDATE [%2] SET [%1] = ? WHERE [%1] = ?"_s.arg(c.colonna, c.tabella),
                                      {{nuovo, vecchio}});
            else if (!esiste(vecchio))
                persi << u"tabella %1, colonna %2: %3"_s.arg(c.tabella, c.colonna, vecchio.left(200));
        }
    return persi;
}

} // namespace zuvora::installa
