#include "etichette/logic/Progetto.h"

#include "etichette/logic/FileEtichetta.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr int passiMassimi = 2000;
constexpr int spostaConTasto = 1;
constexpr QPoint scartoCopia(30, 30); // a copy lies beside its original

int posizione(const QRect &area, Progetto::Bordo bordo, const QRect &tutto) {
    switch (bordo) {
    case Progetto::Bordo::Sinistra:
        return tutto.x() - area.x();
    case Progetto::Bordo::CentroOrizzontale:
        return tutto.x() + tutto.width() / 2 - area.x() - area.width() / 2;
    case Progetto::Bordo::Destra:
        return tutto.x() + tutto.width() - area.x() - area.width();
    case Progetto::Bordo::Alto:
        return tutto.y() - area.y();
    case Progetto::Bordo::CentroVerticale:
        return tutto.y() + tutto.height() / 2 - area.y() - area.height() / 2;
    case Progetto::Bordo::Basso:
        return tutto.y() + tutto.height() - area.y() - area.height();
    }
    return 0;
}

bool inOrizzontale(Progetto::Bordo bordo) {
    return bordo == Progetto::Bordo::Sinistra || bordo == Progetto::Bordo::CentroOrizzontale ||
           bordo == Progetto::Bordo::Destra;
}

// QRect::united leaves out rectangles without height, as those of lines are.
QRect unione(const QRect &a, const QRect &b) {
    const QPoint angolo(std::min(a.x(), b.x()), std::min(a.y(), b.y()));
    return {angolo, QSize(std::max(a.x() + a.width(), b.x() + b.width()) - angolo.x(),
                          std::max(a.y() + a.height(), b.y() + b.height()) - angolo.y())};
}

} // namespace

class Progetto::Passo : public QUndoCommand {
public:
    Passo(Progetto &progetto, Stato prima, Stato dopo, QList<int> sceltiPrima, QList<int> sceltiDopo, int fusione)
        : m_progetto(progetto), m_prima(std::move(prima)), m_dopo(std::move(dopo)),
          m_sceltiPrima(std::move(sceltiPrima)), m_sceltiDopo(std::move(sceltiDopo)), m_fusione(fusione) {}
    void undo() override { m_progetto.metti(m_prima, m_sceltiPrima); }
    void redo() override { m_progetto.metti(m_dopo, m_sceltiDopo); }
    int id() const override { return m_fusione; }
    bool mergeWith(const QUndoCommand *altro) override {
        const auto *passo = static_cast<const Passo *>(altro);
        if (passo->m_sceltiPrima != m_sceltiDopo)
            return false;
        m_dopo = passo->m_dopo;
        return true;
    }

private:
    Progetto &m_progetto;
    Stato m_prima;
    Stato m_dopo;
    QList<int> m_sceltiPrima;
    QList<int> m_sceltiDopo;
    int m_fusione;
};

Progetto::Progetto(const Etichetta &etichetta) : m_stato(statoDi(etichetta)) {
    m_pila.setUndoLimit(passiMassimi);
}

Progetto::Stato Progetto::statoDi(const Etichetta &e) {
    Stato stato{e.carta, e.stampa, e.scostamenti, e.ignoti, {}};
    for (const Oggetto &o : e.oggetti)
        stato.oggetti << std::make_shared<const Oggetto>(o);
    return stato;
}

Etichetta Progetto::etichetta() const {
    Etichetta e{m_stato.carta, m_stato.stampa, m_stato.scostamenti, {}, m_stato.ignoti};
    for (const OggettoFermo &o : m_stato.oggetti)
        e.oggetti << *o;
    return e;
}

void Progetto::fai(Stato nuovo, const QString &testo, QList<int> scelti, int fusione) {
    auto passo = std::make_unique<Passo>(*this, m_stato, std::move(nuovo), m_scelti, std::move(scelti), fusione);
    passo->setText(testo);
    m_pila.push(passo.release());
}

void Progetto::metti(const Stato &stato, const QList<int> &scelti) {
    m_stato = stato;
    m_scelti = scelti;
    Q_EMIT cambiato();
    Q_EMIT sceltiCambiati();
}

void Progetto::scegli(QList<int> indici) {
    std::sort(indici.begin(), indici.end());
    indici.erase(std::unique(indici.begin(), indici.end()), indici.end());
    if (std::exchange(m_scelti, indici) != indici)
        Q_EMIT sceltiCambiati();
}

void Progetto::scegliTutti() {
    QList<int> tutti;
    for (int i = 0; i < m_stato.oggetti.size(); ++i)
        tutti << i;
    scegli(tutti);
}

void Progetto::aggiungi(const Oggetto &oggetto, const QString &testo) {
    Stato nuovo = m_stato;
    nuovo.oggetti << std::make_shared<const Oggetto>(oggetto);
    fai(nuovo, testo, {static_cast<int>(nuovo.oggetti.size()) - 1});
}

void Progetto::elimina() {
    Stato nuovo = m_stato;
    for (qsizetype k = m_scelti.size() - 1; k >= 0; --k) // from behind, so that the other indices hold
        if (mobile(m_scelti[k]))
            nuovo.oggetti.removeAt(m_scelti[k]);
    if (nuovo.oggetti.size() != m_stato.oggetti.size())
        fai(std::move(nuovo), u"Elimina"_s, {});
}

void Progetto::duplica() {
    incolla(copia());
}

void Progetto::sposta(const QPoint &di, bool tasto) {
    Stato nuovo = m_stato;
    bool mosso = false;
    for (const int i : m_scelti)
        if (mobile(i)) {
            Oggetto o = *nuovo.oggetti[i];
            o.area.translate(di);
            nuovo.oggetti[i] = std::make_shared<const Oggetto>(std::move(o));
            mosso = true;
        }
    if (mosso && !di.isNull())
        fai(std::move(nuovo), u"Sposta"_s, m_scelti, tasto ? spostaConTasto : -1);
}

void Progetto::mettiAree(const QList<std::pair<int, QRect>> &aree, const QString &testo) {
    Stato nuovo = m_stato;
    bool diverso = false;
    for (const auto &[i, area] : aree)
        if (mobile(i) && nuovo.oggetti[i]->area != area) {
            Oggetto o = *nuovo.oggetti[i];
            o.area = area;
            nuovo.oggetti[i] = std::make_shared<const Oggetto>(std::move(o));
            diverso = true;
        }
    if (diverso)
        fai(std::move(nuovo), testo);
}

void Progetto::blocca(bool bloccati) {
    Stato nuovo = m_stato;
    for (const int i : m_scelti) {
        Oggetto o = *nuovo.oggetti[i];
        o.bloccato = bloccati;
        nuovo.oggetti[i] = std::make_shared<const Oggetto>(std::move(o));
    }
    if (!m_scelti.isEmpty())
        fai(std::move(nuovo), bloccati ? u"Blocca"_s : u"Sblocca"_s);
}

void Progetto::allinea(Bordo bordo) {
    if (m_scelti.isEmpty())
        return;
    QRect tutto = areaStampabile(carta());
    if (m_scelti.size() > 1) {
        tutto = oggetti()[m_scelti.first()]->area;
        for (const int i : m_scelti)
            tutto = unione(tutto, oggetti()[i]->area);
    }
    QList<std::pair<int, QRect>> aree;
    for (const int i : m_scelti) {
        const QRect &area = oggetti()[i]->area;
        const int di = posizione(area, bordo, tutto);
        aree << std::pair(i, inOrizzontale(bordo) ? area.translated(di, 0) : area.translated(0, di));
    }
    mettiAree(aree, u"Allinea"_s);
}

void Progetto::distribuisci(Qt::Orientation asse) {
    if (m_scelti.size() < 3)
        return;
    const bool orizzontale = asse == Qt::Horizontal;
    const auto inizio = [&](int i) { return orizzontale ? oggetti()[i]->area.x() : oggetti()[i]->area.y(); };
    const auto lungo = [&](int i) { return orizzontale ? oggetti()[i]->area.width() : oggetti()[i]->area.height(); };
    QList<int> ordine = m_scelti;
    std::stable_sort(ordine.begin(), ordine.end(), [&](int a, int b) { return inizio(a) < inizio(b); });
    int occupato = 0;
    for (const int i : ordine)
        occupato += lungo(i);
    const double vuoto = double(inizio(ordine.last()) + lungo(ordine.last()) - inizio(ordine.first()) - occupato) /
                         double(ordine.size() - 1);
    QList<std::pair<int, QRect>> aree;
    double dove = inizio(ordine.first());
    for (const int i : ordine) {
        QRect area = oggetti()[i]->area;
        if (orizzontale)
            area.moveLeft(qRound(dove));
        else
            area.moveTop(qRound(dove));
        aree << std::pair(i, area);
        dove += lungo(i) + vuoto;
    }
    mettiAree(aree, u"Distribuisci"_s);
}

void Progetto::riordina(bool davanti) {
    Stato nuovo = m_stato;
    QList<OggettoFermo> mossi;
    for (qsizetype k = m_scelti.size() - 1; k >= 0; --k)
        mossi.prepend(nuovo.oggetti.takeAt(m_scelti[k]));
    const qsizetype primo = davanti ? nuovo.oggetti.size() : 0;
    QList<int> scelti;
    for (qsizetype i = 0; i < mossi.size(); ++i) {
        nuovo.oggetti.insert(primo + i, mossi[i]);
        scelti << static_cast<int>(primo + i);
    }
    if (nuovo.oggetti != m_stato.oggetti)
        fai(std::move(nuovo), davanti ? u"Porta in primo piano"_s : u"Porta in fondo"_s, scelti);
}

void Progetto::inPrimoPiano() {
    riordina(true);
}

void Progetto::inFondo() {
    riordina(false);
}

void Progetto::setCarta(const Carta &carta) {
    Stato nuovo = m_stato;
    nuovo.carta = carta;
    if (!(carta == m_stato.carta))
        fai(std::move(nuovo), u"Carta"_s);
}

void Progetto::setStampa(const Stampa &stampa) {
    Stato nuovo = m_stato;
    nuovo.stampa = stampa;
    if (!(stampa == m_stato.stampa))
        fai(std::move(nuovo), u"Opzioni di stampa"_s);
}

void Progetto::setScostamento(const QString &stampante, const QPoint &scostamento) {
    Stato nuovo = m_stato;
    nuovo.scostamenti[stampante] = scostamento;
    if (scostamento != m_stato.scostamenti.value(stampante))
        fai(std::move(nuovo), u"Scostamento della stampa"_s);
}

void Progetto::sostituisci(const Etichetta &etichetta, const QString &testo) {
    fai(statoDi(etichetta), testo, {});
}

QByteArray Progetto::copia() const {
    Etichetta parte;
    for (const int i : m_scelti)
        parte.oggetti << *oggetti()[i];
    return testoEtichetta(parte);
}

bool Progetto::incolla(const QByteArray &testo) {
    const EtichettaLetta letta = etichettaDa(testo);
    if (!letta.etichetta || letta.etichetta->oggetti.isEmpty() ||
        oggetti().size() + letta.etichetta->oggetti.size() > oggettiMassimi)
        return false;
    Stato nuovo = m_stato;
    QList<int> scelti;
    for (Oggetto o : letta.etichetta->oggetti) {
        o.area.translate(scartoCopia);
        o.bloccato = false;
        scelti << static_cast<int>(nuovo.oggetti.size());
        nuovo.oggetti << std::make_shared<const Oggetto>(std::move(o));
    }
    fai(std::move(nuovo), u"Incolla"_s, scelti);
    return true;
}

} // namespace zuvora
