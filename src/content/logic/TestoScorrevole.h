#pragma once

#include <QString>

namespace zuvora {

inline constexpr int passoScorrevole_ms = 150;

// The moving text of the ticker's trial.
class TestoScorrevole {
public:
    void prepara(const QString &testo); // thirty blanks, then the text
    void svuota() { m_mobile.clear(); }
    // Moves the first character to the end; gives what is shown.
    const QString &passo();

private:
    QString m_mobile;
};

// What the pages of the main panel keep in the settings row; an empty text for Null.
QString leggiTestoScorrevole(const QString &cartella);
void salvaTestoScorrevole(const QString &cartella, const QString &testo);
QString leggiCartellaMusica(const QString &cartella);
// An empty folder writes nothing and gives false.
bool salvaCartellaMusica(const QString &cartella, const QString &musica);

} // namespace zuvora
