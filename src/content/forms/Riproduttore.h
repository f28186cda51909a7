#pragma once

#include "shell/host/Controllo.h"
#include "shell/host/Lettore.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedLayout>

namespace zuvora {

// Plays one film in its box, over a calm transport: play and pause, place, volume, name of the file. A film that can't
// be played is told in the box; a missing one leaves it empty and silent.
class Riproduttore : public Controllo<QWidget> {
    Q_OBJECT
public:
    // `componenti`: the folder of the player's component.
    Riproduttore(QWidget *padre, const char *nome, const Posto &posto, const QString &componenti);
    ~Riproduttore() override;

    void setFile(const QString &percorso); // native form
    // Starts the file; returns at once. The component is loaded when the box stands on the screen.
    void avvia();
    QString avviso() const { return m_avviso->text(); } // the text in the film's place
    bool suona() const;

Q_SIGNALS:
    void cambiato();

protected:
    void paintEvent(QPaintEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;

private:
    void crea();
    void alterna();
    void aggiorna();
    void costruisci();

    QString m_componenti;
    QString m_percorso;
    bool m_daAvviare = false;
    std::unique_ptr<Lettore> m_lettore;
    QWidget *m_film;
    QStackedLayout *m_pila;
    QLabel *m_avviso;
    QPushButton *m_pausa;
    QSlider *m_posizione;
    QLabel *m_tempo;
    QSlider *m_volume;
    QLabel *m_nome;
};

// A span of time as a transport shows it: "0:07", "1:02:03".
QString testoTempo(std::chrono::milliseconds tempo);

} // namespace zuvora
