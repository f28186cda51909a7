#include "etichette/biglietto/Stampante.h"

#include <array>
#include <cups/cups.h>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct LiberaCoda {
    void operator()(cups_dest_t *d) const { cupsFreeDests(1, d); }
};
struct LiberaDati {
    void operator()(cups_dinfo_t *d) const { cupsFreeDestInfo(d); }
};

class Opzioni {
public:
    Opzioni() = default;
    ~Opzioni() { cupsFreeOptions(m_numero, m_opzioni); }
    Opzioni(const Opzioni &) = delete;
    Opzioni &operator=(const Opzioni &) = delete;
    void metti(const char *nome, const QByteArray &valore) {
        m_numero = cupsAddOption(nome, valore.constData(), m_numero, &m_opzioni);
    }
    int numero() const { return m_numero; }
    cups_option_t *tutte() const { return m_opzioni; }

private:
    int m_numero = 0;
    cups_option_t *m_opzioni = nullptr;
};

// Drivers of label printers call one thing by several names: the first that this one offers is used.
struct Nome {
    const char *opzione;
    const char *valore; // null: the darkness itself
};
constexpr std::array<Nome, 4> tagli = {{{"CutMedia", "EndOfPage"},
                                        {"DocCutType", "1PartialCutDoc"},
                                        {"PageCutType", "1PartialCutPage"},
                                        {"finishings", "11"}}};
constexpr std::array<Nome, 3> scurezze = {
    {{"Darkness", nullptr}, {"zePrintDarkness", nullptr}, {"print-darkness", nullptr}}};

template <std::size_t n>
void chiedi(Opzioni &opzioni, const std::array<Nome, n> &nomi, const QByteArray &misura, cups_dest_t *coda,
            cups_dinfo_t *dati) {
    for (const Nome &nome : nomi) {
        const QByteArray valore = nome.valore != nullptr ? QByteArray(nome.valore) : misura;
        if (cupsCheckDestSupported(CUPS_HTTP_DEFAULT, coda, dati, nome.opzione, valore.constData()) == 0)
            continue;
        opzioni.metti(nome.opzione, valore);
        return;
    }
}

QString motivoCups() {
    return QString::fromUtf8(cupsLastErrorString());
}

} // namespace

QString stampaPdf(const QString &stampante, const QByteArray &pdf, const Stampa &stampa) {
    const std::unique_ptr<cups_dest_t, LiberaCoda> coda(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, stampante.toUtf8().constData(), nullptr));
    if (!coda)
        return u"La stampante «%1» non c'è, o il servizio di stampa non risponde."_s.arg(stampante);
    const std::unique_ptr<cups_dinfo_t, LiberaDati> dati(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, coda.get()));
    if (!dati)
        return u"La stampante «%1» non risponde. (%2)"_s.arg(stampante, motivoCups());
    Opzioni opzioni;
    opzioni.metti(CUPS_COPIES, QByteArray::number(stampa.copie));
    if (stampa.taglia)
        chiedi(opzioni, tagli, {}, coda.get(), dati.get());
    if (stampa.scurezza > 0)
        chiedi(opzioni, scurezze, QByteArray::number(stampa.scurezza), coda.get(), dati.get());
    int lavoro = 0;
    if (cupsCreateDestJob(CUPS_HTTP_DEFAULT, coda.get(), dati.get(), &lavoro, "Biglietto", opzioni.numero(),
                          opzioni.tutte()) > IPP_STATUS_OK_EVENTS_COMPLETE)
        return u"La stampante «%1» ha rifiutato il biglietto. (%2)"_s.arg(stampante, motivoCups());
    const bool presa =
        cupsStartDestDocument(CUPS_HTTP_DEFAULT, coda.get(), dati.get(), lavoro, "Biglietto", CUPS_FORMAT_PDF, 0,
                              nullptr, 1) == HTTP_STATUS_CONTINUE &&
        cupsWriteRequestData(CUPS_HTTP_DEFAULT, pdf.constData(), size_t(pdf.size())) == HTTP_STATUS_CONTINUE &&
        cupsFinishDestDocument(CUPS_HTTP_DEFAULT, coda.get(), dati.get()) <= IPP_STATUS_OK_EVENTS_COMPLETE;
    if (presa)
        return {};
    const QString motivo = motivoCups();
    cupsCancelDestJob(CUPS_HTTP_DEFAULT, coda.get(), lavoro);
    return u"Il biglietto non è arrivato intero alla stampante «%1». (%2)"_s.arg(stampante, motivo);
}

QStringList stampanti() {
    cups_dest_t *code = nullptr;
    const int numero = cupsGetDests2(CUPS_HTTP_DEFAULT, &code);
    QStringList nomi;
    for (int i = 0; i < numero; ++i) {
        const QString nome = QString::fromUtf8(code[i].name);
        if (code[i].is_default != 0)
            nomi.prepend(nome);
        else if (!nomi.contains(nome))
            nomi.append(nome);
    }
    cupsFreeDests(numero, code);
    return nomi;
}

} // namespace zuvora
