#pragma once

#include <QVideoFrame>
#include <QWidget>
#include <mutex>

namespace zuvora {

// The last frame, handed from the player's thread to the screen. What the screen misses is dropped.
class Passaggio {
public:
    // True when the screen has to be told.
    bool metti(const QVideoFrame &fotogramma);
    QVideoFrame prendi();

private:
    std::mutex m_chiave;
    QVideoFrame m_fotogramma;
    bool m_inAttesa = false;
};

// Where a film is seen: the whole picture as large as fits, black around it.
class Schermo : public QWidget {
    Q_OBJECT
public:
    explicit Schermo(QWidget *padre);
    void mostra(const QVideoFrame &fotogramma);
    void spegni(); // black

protected:
    void paintEvent(QPaintEvent *e) override;

private:
    QVideoFrame m_fotogramma;
    QImage m_immagine;
};

} // namespace zuvora
