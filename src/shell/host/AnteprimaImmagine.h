#pragma once

#include "shell/host/PictureBox.h"
#include "shell/immagini/LetturaImmagine.h"
#include "shell/logic/Percorsi.h"

#include <QTimer>
#include <memory>

namespace zuvora {

// The preview of a picture file, stretched to the control's size. The disk is asked and the picture decoded beside the
// user interface; of several asked for meanwhile only the last is shown, and a path that doesn't answer is given up.
// What can't be shown is said in the control itself; what can be seen through lies on a chequered ground.
class AnteprimaImmagine : public PictureBox {
    Q_OBJECT
public:
    enum class Stato { Vuota, InCorso, Mostrata, NonLeggibile };

    AnteprimaImmagine(QWidget *padre, const char *nome, const Posto &posto, Percorsi percorsi);
    ~AnteprimaImmagine() override;

    void mostra(const QString &percorso); // in any form of Percorsi; an empty path clears the preview
    void svuota(const QString &testo = {});
    Stato stato() const { return m_stato; }
    const QString &percorso() const { return m_percorso; }
    // An Italian sentence when the file last asked for can't be shown, else empty.
    const QString &guasto() const { return m_guasto; }

Q_SIGNALS:
    void cambiato(); // a picture, or the reason why there is none, stands in the control

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    void leggiFile(const QString &file);
    void concludi(const ImmagineLetta &letta);
    void fallisci(const QString &motivo);
    void smetti(); // gives up the reading under way

    QString m_percorso;
    Stato m_stato = Stato::Vuota;
    bool m_trasparente = false;
    QString m_guasto;
    Percorsi m_percorsi;
    std::shared_ptr<Avanzamento> m_lettura; // of the picture asked for last
    QTimer m_indugio;
};

} // namespace zuvora
