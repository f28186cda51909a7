#include "designer/logic/ImmaginiQt.h"

#include "shell/immagini/LetturaImmagine.h"

namespace zuvora {

namespace {

constexpr qsizetype memoria = 400 * 1024; // KiB: a background and all decorations, as large as they are decoded

} // namespace

ImmaginiQt::ImmaginiQt(QSize massimo, int fili) : m_massimo(massimo), m_decodificate(memoria), m_squadra(fili) {}

void ImmaginiQt::prepara(const QString &percorso) {
    if (percorso.isEmpty() || m_attese.contains(percorso) || m_decodificate.contains(percorso))
        return;
    m_attese.insert(percorso, m_squadra.affida([lettura = lettura(percorso)] {
        Avanzamento avanzamento;
        return lettura(avanzamento);
    }));
}

bool ImmaginiQt::carica(const QString &percorso) {
    return !immagine(percorso).isNull();
}

QImage ImmaginiQt::immagine(const QString &percorso) {
    if (const QImage *nota = m_decodificate.object(percorso))
        return *nota;
    prepara(percorso);
    const auto attesa = m_attese.take(percorso);
    QImage nuova = attesa.valid() ? attesa.get() : QImage();
    tieni(percorso, nuova);
    return nuova;
}

std::function<QImage(Avanzamento &)> ImmaginiQt::lettura(const QString &percorso) const {
    return [percorso, massimo = m_massimo](Avanzamento &avanzamento) {
        return leggi(percorso, massimo, Riduzione::Proporzioni, &avanzamento).immagine;
    };
}

void ImmaginiQt::tieni(const QString &percorso, const QImage &immagine) {
    m_attese.remove(percorso);
    m_decodificate.insert(percorso, new QImage(immagine), immagine.sizeInBytes() / 1024 + 1);
}

} // namespace zuvora
