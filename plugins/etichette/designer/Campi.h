#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <optional>

namespace zuvora {

// A length in millimetres, with a comma or a point. Enter or leaving the box applies it; a text that is no number goes
// back to what stood there.
class CampoMisura : public QLineEdit {
    Q_OBJECT
public:
    CampoMisura(const char *nome, const QString &descrizione, QWidget *padre);
    void setDecimi(std::optional<int> decimi); // nothing: several objects that differ
    std::optional<int> decimi() const;

Q_SIGNALS:
    void applicato(int decimi);

protected:
    void keyPressEvent(QKeyEvent *e) override;

private:
    void applica();
    std::optional<int> m_decimi;
};

// A text of one or more lines: Enter applies it, Shift with Enter makes a line.
class CampoTesto : public QPlainTextEdit {
    Q_OBJECT
public:
    CampoTesto(const char *nome, const QString &descrizione, QWidget *padre);
    void mostra(const QString &testo);

Q_SIGNALS:
    void applicato(const QString &testo);

protected:
    void keyPressEvent(QKeyEvent *e) override;
    void focusOutEvent(QFocusEvent *e) override;

private:
    void applica();
    QString m_testo;
};

// "12,5" for 125 tenths of a millimetre.
QString inMillimetri(int decimi);
// Nothing for a text that is no length, or one beyond ten metres.
std::optional<int> daMillimetri(const QString &testo);

} // namespace zuvora
