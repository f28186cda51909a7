#pragma once

#include <QString>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace zuvora {

// Drives modal forms: each step waits until the form of that name is the active modal one, then acts on it. Steps run
// in order, also while an earlier step's action still waits for a form that it opened itself. Steps left over, a form
// that nobody expected, and one with a caption that is cut or a field without a name fail the test.
class Guida : public QObject {
public:
    Guida();
    ~Guida() override;

    Guida &quando(const char *form, std::function<void(QWidget &)> azione);
    // Clicks a button of the form and goes on.
    Guida &premi(const char *form, const char *controllo);
    // Reads the two lines of the message form into `righe`, then answers with the button PB1(indice).
    Guida &messaggio(QString *righe, int indice = 0);
    bool finita() const { return m_passi.empty(); }

private:
    struct Passo {
        QString form;
        std::function<void(QWidget &)> azione;
    };
    void batti();

    std::deque<Passo> m_passi;
    QTimer m_orologio;
    int m_battiti = 0;
};

// The control of that objectName; a missing one fails the test and throws, so that the test ends there.
template <class W> W &trova(QWidget &radice, const char *nome) {
    if (auto *w = radice.findChild<W *>(QString::fromLatin1(nome)))
        return *w;
    throw std::runtime_error(std::string("no control ") + nome);
}
void clicca(QWidget &radice, const char *nome);
// Captions of the form that need more room than they have.
QStringList didascalieTagliate(QWidget &form);
// Fields of the form that a screen reader could not name.
QStringList campiSenzaNome(QWidget &form);
// Saves a picture of the form when the environment names a folder for it (ZUVORA_IMMAGINI).
void fotografa(QWidget &form, const QString &nome = {});

} // namespace zuvora
