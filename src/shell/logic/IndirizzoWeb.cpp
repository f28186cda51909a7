#include "shell/logic/IndirizzoWeb.h"

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

std::optional<QUrl> indirizzoWeb(const QString &testo) {
    const QString pulito = testo.trimmed();
    for (const QChar c : pulito)
        if (c.isSpace() || c.category() == QChar::Other_Control)
            return std::nullopt;
    // What begins like a path is a file here, not a host.
    if (pulito.startsWith(u'/') || pulito.startsWith(u'\\') || pulito.startsWith(u'.'))
        return std::nullopt;
    const QUrl url = QUrl::fromUserInput(pulito);
    const bool web = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    if (!url.isValid() || !web || url.host().isEmpty())
        return std::nullopt;
    return url;
}

} // namespace zuvora
