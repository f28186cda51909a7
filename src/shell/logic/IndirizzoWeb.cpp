#include "shell/logic/IndirizzoWeb.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {

std::optional<QUrl> indirizzoWeb(const QString &testo) {
    static const QRegularExpression web(u"^https?://"_s, QRegularExpression::CaseInsensitiveOption);
    // Another scheme (what stands before a colon that no port follows), a path, blanks inside.
    static const QRegularExpression altro(uR"(^[\w+.-]+:(?!\d)|^[/\\.]|\s)"_s);
    static const QRegularExpression comandi(uR"([\x00-\x1f\x7f])"_s);
    const QString pulito = testo.trimmed();
    const bool conSchema = web.match(pulito).hasMatch();
    if (pulito.isEmpty() || comandi.match(pulito).hasMatch() || (!conSchema && altro.match(pulito).hasMatch()))
        return std::nullopt;
    const QUrl url(conSchema ? pulito : u"http://"_s + pulito);
    if (!url.isValid() || url.host().isEmpty())
        return std::nullopt;
    return url;
}

} // namespace zuvora
