#include "shell/store/Recordset.h"

#include "shell/store/Stato.h"

namespace zuvora {

using namespace Qt::Literals::StringLiterals;

namespace {

// The column of a field; a field outlives a Refresh, its column perhaps not.
const Colonna &colonnaDi(const Connessione &c, const Sorgente &sorgente, int n, Azione azione = Azione::Lettura) {
    if (n < 0 || n >= static_cast<int>(sorgente.colonne.size()))
        throw c.errore(Errore::ColonnaNonTrovata, azione, QString::number(n));
    return sorgente.colonne[static_cast<size_t>(n)];
}

} // namespace

Recordset::Recordset(std::unique_ptr<Stato> stato) : m_stato(std::move(stato)) {}

Recordset::~Recordset() = default;

Recordset::Stato &Recordset::stato() const {
    if (!m_stato)
        throw EngineError(Errore::NessunRecord,
                          u"Nessun elenco di dati è aperto. Chiudere la finestra e aprirla di nuovo."_s);
    return *m_stato;
}

// ---- columns

Valore Recordset::Field::Value() const {
    Stato &s = m_rs->stato();
    colonnaDi(s.connessione, s.sorgente, m_colonna);
    const auto n = static_cast<size_t>(m_colonna);
    if (s.modo != Stato::Modo::Lettura && s.scritti[n])
        return *s.scritti[n];
    if (s.modo == Stato::Modo::Nuovo)
        return {};
    return s.rigaCorrente()[m_colonna];
}

void Recordset::Field::SetValue(const Valore &v) {
    Stato &s = m_rs->stato();
    const Colonna &colonna = colonnaDi(s.connessione, s.sorgente, m_colonna, Azione::Scrittura);
    if (s.modo == Stato::Modo::Lettura)
        throw s.connessione.errore(Errore::ModificaNonIniziata, Azione::Scrittura);
    const auto convertito = perColonna(v, colonna.tipo);
    if (!convertito)
        throw s.connessione.errore(Errore::TipoNonValido, Azione::Scrittura, colonna.nome);
    s.scritti[static_cast<size_t>(m_colonna)] = *convertito;
}

QString Recordset::Field::Name() const {
    const Stato &s = m_rs->stato();
    return colonnaDi(s.connessione, s.sorgente, m_colonna).nome;
}

QString Recordset::Field::TipoDichiarato() const {
    const Stato &s = m_rs->stato();
    return QString::fromUtf8(colonnaDi(s.connessione, s.sorgente, m_colonna).dichiarato);
}

int Recordset::Campi::Count() const {
    return static_cast<int>(m_rs->stato().sorgente.colonne.size());
}

Recordset::Field Recordset::Campi::Item(QStringView nome) const {
    const Stato &s = m_rs->stato();
    for (int n = 0; n < Count(); ++n)
        if (nome.compare(s.sorgente.colonne[static_cast<size_t>(n)].nome, Qt::CaseInsensitive) == 0)
            return {*m_rs, n};
    throw s.connessione.errore(Errore::ColonnaNonTrovata, Azione::Lettura, nome.toString());
}

Recordset::Field Recordset::Campi::Item(int indice) const {
    const Stato &s = m_rs->stato();
    colonnaDi(s.connessione, s.sorgente, indice);
    return {*m_rs, indice};
}

QStringList Recordset::Campi::Names() const {
    QStringList nomi;
    for (const Colonna &c : m_rs->stato().sorgente.colonne)
        nomi.append(c.nome);
    return nomi;
}

Recordset::Campi Recordset::Fields() {
    return Campi(*this);
}

Recordset::Field Recordset::operator[](QStringView nome) {
    return Fields().Item(nome);
}

// ---- the current record

int Recordset::RecordCount() const {
    return stato().sorgente.quante();
}

bool Recordset::Eof() const {
    const Stato &s = stato();
    return s.sorgente.quante() == 0 || (!s.cancellato && s.posto >= s.sorgente.quante());
}

void Recordset::MoveFirst() {
    SetAbsolutePosition(0);
}

void Recordset::MoveLast() {
    SetAbsolutePosition(RecordCount() - 1);
}

void Recordset::MoveNext() {
    Stato &s = stato();
    if (!s.cancellato && !s.suRecord())
        throw s.senzaRecord(Azione::Lettura);
    s.vaiA(s.cancellato ? s.posto : s.posto + 1);
}

int Recordset::AbsolutePosition() const {
    const Stato &s = stato();
    return s.suRecord() ? s.posto : -1;
}

void Recordset::SetAbsolutePosition(int indice) {
    Stato &s = stato();
    if (indice < 0 || indice >= s.sorgente.quante())
        throw s.senzaRecord(Azione::Lettura);
    s.vaiA(indice);
}

void Recordset::Edit() {
    stato().apri(Stato::Modo::Modifica);
}

void Recordset::AddNew() {
    stato().apri(Stato::Modo::Nuovo);
}

void Recordset::Update() {
    stato().scrivi();
}

void Recordset::CancelUpdate() {
    Stato &s = stato();
    s.modo = Stato::Modo::Lettura;
    s.scritti.clear();
}

void Recordset::Delete() {
    stato().cancella();
}

void Recordset::FindFirst(const QString &criterio) {
    Stato &s = stato();
    const int posto = trovaPrimo(s.connessione, s.sorgente, criterio);
    s.nessuno = posto < 0;
    if (posto >= 0)
        s.vaiA(posto);
}

bool Recordset::NoMatch() const {
    return stato().nessuno;
}

Valore Recordset::leggi(int riga, int colonna) const {
    return stato().daFinestra(riga, colonna);
}

} // namespace zuvora
