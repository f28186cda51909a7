#pragma once

#include "content/logic/Radio.h"
#include "shell/host/Controllo.h"
#include "shell/host/Lettore.h"

#include <QLabel>
#include <QSlider>

namespace zuvora {

// Plays a station and says how it goes: its name, its state in words, the reason when it falls silent, the volume.
class AscoltoRadio : public Controllo<QWidget> {
    Q_OBJECT
public:
    AscoltoRadio(QWidget *padre, const char *nome, const Posto &posto, const QString &componenti);
    ~AscoltoRadio() override; // falls silent

    // Returns at once. The component is loaded when the box stands on the screen.
    void ascolta(const VoceRadio &voce);
    QString stato() const { return m_stato->text(); }
    QString motivo() const { return m_motivo->text(); }

Q_SIGNALS:
    void cambiato();
    void rimandato(); // the address answers with a page of the web

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    void costruisci();
    void collega();
    void aggiorna();
    void mostra(const QString &stato, const QString &motivo = {});

    QString m_componenti;
    VoceRadio m_voce;
    bool m_daCollegare = false;
    std::unique_ptr<Lettore> m_lettore;
    QLabel *m_nome;
    QLabel *m_stato;
    QLabel *m_motivo;
    QSlider *m_volume;
};

} // namespace zuvora
