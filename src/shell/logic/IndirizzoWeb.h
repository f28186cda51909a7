#pragma once

#include <QString>
#include <QUrl>
#include <optional>

namespace zuvora {

// The web address that a text names, or nothing. Only http and https with a host count; without a scheme
// ("www.comune.example/news") it is http, so that the server can send on to https.
std::optional<QUrl> indirizzoWeb(const QString &testo);

} // namespace zuvora
