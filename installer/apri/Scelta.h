#pragma once

#include <QString>

namespace zuvora::apri {

// Which installation the menu's entry opens: one line in a file of the user's settings.
class Scelta {
public:
    // `file` empty: the user's own.
    explicit Scelta(QString file = {});

    QString cartella() const; // empty when none was chosen
    // Empty when it was kept, else the Italian reason.
    QString ricorda(const QString &cartella) const;

private:
    QString m_file;
};

// A folder with the program and its settings database.
bool eInstallazione(const QString &cartella);
// The installation's program isn't the one of `origine`.
bool programmaDiverso(const QString &cartella, const QString &origine);

} // namespace zuvora::apri
