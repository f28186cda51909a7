#pragma once

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <functional>

namespace zuvora::installa {

// Puts other files in place of an installation's, all of them or none. Everything new waits beside its later place, on
// its file system, before the first file is touched; the old ones wait likewise until the last new one is there. A
// record on the disk says how far it is, so that whatever a killed process left is undone by the next one. Databases
// are replaced through the engine, whoever has them open. Every operation throws Guasto or EngineError.
class Scambio {
public:
    // Undoes first what a killed one left. Refuses a folder in which another process is at work. `passo` is asked
    // before each step, the undone ones too, and may throw.
    Scambio(const QString &cartella, std::function<void()> passo);
    // What has begun and is not done is undone. Where even that fails, the next one tries again.
    ~Scambio();
    Scambio(const Scambio &) = delete;
    Scambio &operator=(const Scambio &) = delete;

    // True when a killed one had to be undone.
    bool annullato() const { return m_annullato; }
    // The folder to fill with the new files, under the names that they will have.
    QString preparazione() const;
    // Puts them in their places. `copia` is where the installation is saved, for whoever finds this cut off. On the
    // disk when this returns.
    void esegui(const QStringList &nomi, const QString &copia);

private:
    QString m_cartella;
    std::function<void()> m_passo;
    QLockFile m_guardia;
    bool m_annullato = false;
};

// What to tell of a folder in which an exchange was cut off; empty when there is none.
QString scambioSospeso(const QString &cartella);

} // namespace zuvora::installa
