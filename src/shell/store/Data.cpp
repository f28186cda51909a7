#include "shell/store/Data.h"

#include "shell/store/NomiFile.h"
#include "shell/store/Stato.h"

#include <QDir>
#include <QPointer>
#include <vector>

namespace zuvora {

// The record set lives as long as the Data object: a Refresh fills it anew, so that a reference to it stays good.
struct Data::Interno {
    std::unique_ptr<Connessione> connessione;
    zuvora::Recordset recordset{nullptr};
    std::vector<std::pair<QPointer<const QObject>, std::function<void()>>> ascoltatori;

    void avvisa() {
        std::erase_if(ascoltatori, [](const auto &a) { return a.first.isNull(); });
        // A list may bind another one, or end one, while it fills itself.
        const auto presenti = ascoltatori;
        for (const auto &[lista, ascoltatore] : presenti)
            if (!lista.isNull())
                ascoltatore();
    }
};

Data::Data() : m_interno(std::make_unique<Interno>()) {}

Data::~Data() = default;

void Data::Refresh() {
    auto &[connessione, recordset, ascoltatori] = *m_interno;
    recordset.m_stato.reset();
    try {
        if (!connessione || !connessione->vale(DatabaseName)) {
            connessione.reset();
            connessione = std::make_unique<Connessione>(DatabaseName, attesa);
        }
        connessione->attendi(attesa);
        recordset.m_stato =
            std::make_unique<zuvora::Recordset::Stato>(*connessione, apriSorgente(*connessione, RecordSource, limite));
    } catch (...) {
        connessione.reset();
        m_interno->avvisa();
        throw;
    }
    m_interno->avvisa();
}

bool Data::aperto() const {
    return m_interno->recordset.m_stato != nullptr;
}

zuvora::Recordset &Data::Recordset() {
    m_interno->recordset.stato();
    return m_interno->recordset;
}

void Data::seAggiornato(const QObject &lista, std::function<void()> ascoltatore) {
    m_interno->ascoltatori.emplace_back(&lista, std::move(ascoltatore));
}

QString percorsoArchivio(const QString &cartella) {
    return QDir::toNativeSeparators(QDir(cartella).filePath(nomi::archivio.toString()));
}

zuvora::Recordset &apri(Data &dato, const QString &cartella, const QString &sorgente) {
    dato.DatabaseName = percorsoArchivio(cartella);
    dato.RecordSource = sorgente;
    dato.Refresh();
    return dato.Recordset();
}

} // namespace zuvora
