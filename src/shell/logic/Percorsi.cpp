#include "shell/logic/Percorsi.h"

#include "shell/logic/Domanda.h"
#include "shell/logic/FileAtomico.h"

#include <QDir>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr qsizetype lunghezzaUnita = 2; // the letter and the colon

bool haUnita(QStringView percorso) {
    return percorso.size() >= lunghezzaUnita && percorso[1] == u':' && percorso[0].unicode() < 0x80 &&
           percorso[0].isLetter();
}

bool eSeparatore(QChar c) {
    return c == u'/' || c == u'\\';
}

QString conBarre(QString percorso) {
    return percorso.replace(u'\\', u'/');
}

QString senzaBarraFinale(QString percorso, qsizetype minimo = 0) {
    while (percorso.size() > minimo && eSeparatore(percorso.back()))
        percorso.chop(1);
    return percorso;
}

// "/a//b/" as "/a/b".
QString pulito(const QString &percorso) {
    QString netto;
    for (const QChar c : percorso)
        if (c != u'/' || !netto.endsWith(u'/'))
            netto += c;
    return senzaBarraFinale(netto, 1);
}

// What follows `inizio` in the path when its first names are those of `inizio`, in any case.
std::optional<QString> dopo(const QString &percorso, const QString &inizio) {
    const QString netto = senzaBarraFinale(inizio);
    if (!percorso.startsWith(netto, Qt::CaseInsensitive))
        return std::nullopt;
    const QString resto = percorso.mid(netto.size());
    return resto.isEmpty() || resto.startsWith(u'/') ? std::optional(resto) : std::nullopt;
}

QStringView primaDelPunto(QStringView macchina) {
    const qsizetype punto = macchina.indexOf(u'.');
    return punto < 0 ? macchina : macchina.first(punto);
}

bool stessaMacchina(QStringView a, QStringView b) {
    const bool indirizzo = !a.isEmpty() && a.front().isDigit();
    return a.compare(b, Qt::CaseInsensitive) == 0 ||
           (!indirizzo && primaDelPunto(a).compare(primaDelPunto(b), Qt::CaseInsensitive) == 0);
}

} // namespace

QString percorsoIn(const QString &cartella, QStringView relativo) {
    return QDir::toNativeSeparators(u"%1/%2"_s.arg(senzaBarraFinale(cartella), relativo));
}

Percorsi::Percorsi(std::shared_ptr<const SistemaFile> sistema) : m_sistema(std::move(sistema)) {}

QString Percorsi::unisci(const QString &cartella, QStringView nome) const {
    while (!nome.isEmpty() && eSeparatore(nome.front()))
        nome = nome.sliced(1);
    const bool barreRovesce = m_sistema->conUnita() || haUnita(cartella) || cartella.startsWith(u'\\');
    QString coda = nome.toString();
    coda.replace(barreRovesce ? u'/' : u'\\', barreRovesce ? u'\\' : u'/');
    return senzaBarraFinale(cartella) + (barreRovesce ? u'\\' : u'/') + coda;
}

bool Percorsi::eQuestaMacchina(QStringView nome) const {
    constexpr std::array suoi{u"localhost", u"127.0.0.1", u"."};
    return stessaMacchina(nome, m_sistema->nomeMacchina()) ||
           std::ranges::any_of(suoi, [&](QStringView altro) { return nome.compare(altro, Qt::CaseInsensitive) == 0; });
}

// `resto` begins with the share's name or, for want of such a share, with a folder below the root.
QStringList Percorsi::diQuestaMacchina(const QString &resto) const {
    QStringList trovati;
    const QList<Condivisione> condivisioni = m_sistema->condivisioni();
    for (const Condivisione &c : condivisioni)
        if (const auto dentro = dopo(resto, u'/' + c.nome))
            trovati += pulito(c.cartella + *dentro);
    const bool disco = resto.size() > lunghezzaUnita && resto[2] == u'$' && (resto.size() == 3 || resto[3] == u'/');
    trovati += pulito(disco ? u'/' + resto.mid(3) : resto); // the whole disk, as "C$"
    return trovati;
}

QStringList Percorsi::montati(QStringView macchina, const QString &resto) const {
    QStringList trovati;
    const QList<Montaggio> montaggi = m_sistema->montaggi();
    for (const Montaggio &m : montaggi) {
        const QString origine = conBarre(m.origine);
        const bool smb = origine.startsWith(u"//");
        const qsizetype fine = smb ? origine.indexOf(u'/', 2) : origine.indexOf(u":/");
        if (fine <= 0 || haUnita(origine))
            continue;
        const QString server = smb ? origine.sliced(2, fine - 2) : origine.left(fine);
        const QString esportata = origine.sliced(smb ? fine : fine + 1);
        if (!stessaMacchina(macchina, server))
            continue;
        auto dentro = dopo(resto, esportata);
        if (!dentro && !smb) // an export is named by its last folder
            dentro = dopo(resto, esportata.sliced(esportata.lastIndexOf(u'/')));
        if (dentro)
            trovati += pulito(m.cartella + *dentro);
    }
    return trovati;
}

// The native paths that may be meant, the likeliest first.
QStringList Percorsi::candidati(const QString &scritto) const {
    if (!percorsoPossibile(scritto))
        return {};
    if (m_sistema->conUnita())
        return {QString(scritto).replace(u'/', u'\\')};
    if (haUnita(scritto))
        return {pulito(u'/' + conBarre(scritto.mid(lunghezzaUnita)))};
    const bool rovesce = scritto.startsWith(u'\\');
    const QString barre = conBarre(scritto);
    const qsizetype fine = barre.startsWith(u"//") ? barre.indexOf(u'/', 2) : -1;
    if (fine > 2) {
        const QStringView macchina = QStringView(barre).sliced(2, fine - 2);
        const QString resto = pulito(barre.sliced(fine));
        QStringList trovati = eQuestaMacchina(macchina) ? diQuestaMacchina(resto) : montati(macchina, resto);
        if (rovesce || !trovati.isEmpty())
            return trovati;
    } else if (barre.startsWith(u"//") && rovesce) {
        return {};
    }
    if (rovesce || scritto.startsWith(u"//"))
        return {pulito(barre)};
    QStringList trovati{pulito(scritto)};
    if (scritto.contains(u'\\')) // a name may hold one; else it stands between two names
        trovati += pulito(barre);
    return trovati;
}

std::optional<QString> Percorsi::nativo(const QString &scritto) const {
    const QStringList possibili = candidati(scritto);
    return possibili.isEmpty() ? std::nullopt : std::optional(possibili.constFirst());
}

QString Percorsi::conUnita(const QString &percorso) const {
    if (!percorso.startsWith(u'/') || m_sistema->conUnita())
        return QString(percorso).replace(u'/', u'\\');
    return u"C:"_s + pulito(percorso).replace(u'/', u'\\');
}

QString Percorsi::diRete(const QString &percorso) const {
    QString intero = conUnita(percorso);
    if (intero.isEmpty() || intero.startsWith(u"\\\\"))
        return intero;
    const QString resto = haUnita(intero) ? intero.mid(lunghezzaUnita) : intero;
    return u"\\\\"_s + m_sistema->nomeMacchina() + (resto.startsWith(u'\\') ? resto : u'\\' + resto);
}

Percorsi::Esame Percorsi::esamina(const QString &scritto) const {
    const QStringList possibili = candidati(scritto);
    for (const QString &percorso : possibili)
        if (const QString trovato = trovaSenzaCaso(*m_sistema, percorso); !trovato.isEmpty())
            return {m_sistema->specie(trovato), trovato};
    return {};
}

void Percorsi::chiedi(const QString &scritto, QObject &ricevente, std::function<void(const Esame &)> risposta) const {
    zuvora::chiedi<Esame>([copia = *this, scritto] { return copia.esamina(scritto); }, ricevente,
                          [risposta = std::move(risposta)](const std::optional<Esame> &esame) {
                              risposta(esame.value_or(Esame{.specie = Specie::Manca, .percorso = {}, .muto = true}));
                          });
}

Percorsi::Esame Percorsi::chiediEAspetta(const QString &scritto) const {
    const auto esame = zuvora::chiediEAspetta<Esame>([copia = *this, scritto] { return copia.esamina(scritto); });
    return esame.value_or(Esame{.specie = Specie::Manca, .percorso = {}, .muto = true});
}

} // namespace zuvora
