#pragma once

#include <QString>
#include <QUrl>
#include <optional>

namespace zuvora {

// A page of our own that shows nothing but an address of YouTube, which plays only inside of a page that says where it
// comes from. Nothing for an address of anybody else: that is shown by itself.
struct CorniceFilmato {
    QString html;
    QUrl provenienza; // of the scheme of the address, so that neither refuses the other
};
std::optional<CorniceFilmato> corniceFilmato(const QString &indirizzo, const QUrl &sito);

} // namespace zuvora
