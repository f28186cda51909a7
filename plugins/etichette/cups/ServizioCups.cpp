#include "etichette/cups/ServizioCups.h"

#include "etichette/logic/Driver.h"

#include <QTemporaryFile>
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

class OpzioniCups {
public:
    OpzioniCups() = default;
    ~OpzioniCups() { cupsFreeOptions(m_numero, m_opzioni); }
    OpzioniCups(const OpzioniCups &) = delete;
    OpzioniCups &operator=(const OpzioniCups &) = delete;
    void metti(const char *nome, const QByteArray &valore) {
        m_numero = cupsAddOption(nome, valore.constData(), m_numero, &m_opzioni);
    }
    int numero() const { return m_numero; }
    cups_option_t *tutte() const { return m_opzioni; }

private:
    int m_numero = 0;
    cups_option_t *m_opzioni = nullptr;
};

// The description of the queue's driver; empty where it has none.
QByteArray driverDi(const QString &stampante) {
    QTemporaryFile file;
    if (!file.open() || cupsGetFd(CUPS_HTTP_DEFAULT, ("/printers/" + stampante.toUtf8() + ".ppd").constData(),
                                  file.handle()) != HTTP_STATUS_OK)
        return {};
    file.seek(0);
    return file.readAll();
}

QString motivoCups() {
    return QString::fromUtf8(cupsLastErrorString());
}

} // namespace

QString ServizioCups::stampa(const QString &stampante, const QByteArray &pdf, const QSize &carta,
                             const Stampa &opzioni) {
    const std::unique_ptr<cups_dest_t, LiberaCoda> coda(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, stampante.toUtf8().constData(), nullptr));
    if (!coda)
        return u"La stampante «%1» non c'è, o il servizio di stampa non risponde."_s.arg(stampante);
    const std::unique_ptr<cups_dinfo_t, LiberaDati> dati(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, coda.get()));
    if (!dati)
        return u"La stampante «%1» non risponde. (%2)"_s.arg(stampante, motivoCups());
    OpzioniCups chieste;
    chieste.metti(CUPS_COPIES, QByteArray::number(opzioni.copie));
    chieste.metti("print-scaling", "none");
    for (const auto &[nome, valore] : opzioniDriver(driverDi(stampante), opzioni, carta))
        chieste.metti(nome.constData(), valore);
    int lavoro = 0;
    if (cupsCreateDestJob(CUPS_HTTP_DEFAULT, coda.get(), dati.get(), &lavoro, "Biglietto", chieste.numero(),
                          chieste.tutte()) > IPP_STATUS_OK_EVENTS_COMPLETE)
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

QStringList ServizioCups::stampanti() {
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
