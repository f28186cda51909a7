#include "designer/logic/ImmaginiQt.h"

#include "shell/immagini/LetturaImmagine.h"

#include <QFileInfo>

namespace zuvora {

namespace {

constexpr qsizetype memoria = 320 * 1024; // KiB: a background and all decorations, as large as they are decoded

} // namespace

ImmaginiQt::ImmaginiQt(QSize massimo, int fili) : m_massimo(massimo), m_decodificate(memoria), m_squadra(fili) {}

// Called by helper threads too.
ImmaginiQt::Voce ImmaginiQt::decodifica(const QString &percorso, QSize massimo) {
    const QFileInfo file(percorso);
    const qint64 byte = file.size(); // asked first: a file that changes meanwhile is read again
    const QDateTime modifica = file.lastModified();
    return {leggiImmagine(percorso, massimo), modifica, byte};
}

// True when the picture kept is that of the file as it is now.
bool ImmaginiQt::attuale(const QString &percorso) {
    const Voce *voce = m_decodificate.object(percorso);
    const QFileInfo file(percorso);
    return voce != nullptr && file.isFile() && voce->modifica == file.lastModified() && voce->byte == file.size();
}

void ImmaginiQt::prepara(const QString &percorso) {
    if (percorso.isEmpty() || m_attese.contains(percorso) || attuale(percorso))
        return;
    m_attese.insert(percorso,
                    m_squadra.affida([percorso, massimo = m_massimo] { return decodifica(percorso, massimo); }));
}

bool ImmaginiQt::carica(const QString &percorso) {
    return !immagine(percorso).isNull();
}

QImage ImmaginiQt::immagine(const QString &percorso) {
    if (const auto attesa = m_attese.take(percorso); attesa.valid()) {
        const Voce &voce = attesa.get();
        m_decodificate.insert(percorso, new Voce(voce), voce.immagine.sizeInBytes() / 1024 + 1);
    }
    if (attuale(percorso))
        return m_decodificate.object(percorso)->immagine;
    Voce nuova = decodifica(percorso, m_massimo);
    QImage immagine = nuova.immagine;
    if (immagine.isNull())
        m_decodificate.remove(percorso);
    else
        m_decodificate.insert(percorso, new Voce(std::move(nuova)), immagine.sizeInBytes() / 1024 + 1);
    return immagine;
}

} // namespace zuvora
