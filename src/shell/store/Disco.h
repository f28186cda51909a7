#pragma once

#include <QString>
#include <QStringList>

namespace zuvora {

enum class Specie { Manca, File, Cartella, Altro }; // Altro: a pipe, a device

// The disks, as far as a path is looked for on them. Both questions may block on a network path that doesn't answer.
class Disco {
public:
    virtual ~Disco() = default;
    virtual Specie specie(const QString &percorso) const = 0;
    virtual QStringList nomi(const QString &cartella) const = 0; // of files and folders, hidden ones too, sorted
};

class DiscoLocale : public Disco {
public:
    Specie specie(const QString &percorso) const override;
    QStringList nomi(const QString &cartella) const override;
};

// The path as the disk spells it: each name as given or, where nothing is called that, the first that differs only in
// case or in how its accents are composed. Empty when there is none. `percorso` is a native absolute path.
QString trovaSenzaCaso(const Disco &disco, const QString &percorso);

} // namespace zuvora
