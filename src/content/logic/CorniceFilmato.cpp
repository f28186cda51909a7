#include "content/logic/CorniceFilmato.h"

#include "shell/logic/IndirizzoWeb.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

constexpr std::array siti{u"youtube.com", u"youtube-nocookie.com"};

bool eYouTube(const QString &host) {
    return std::any_of(siti.begin(), siti.end(), [&](const char16_t *nome) {
        const QString casa = QString::fromUtf16(nome);
        return host == casa || host.endsWith(u'.' + casa);
    });
}

} // namespace

std::optional<CorniceFilmato> corniceFilmato(const QString &indirizzo, const QUrl &sito) {
    // Embed codes leave the scheme out at times.
    const bool senzaSchema = indirizzo.startsWith("//"_L1);
    const auto url = indirizzoWeb(senzaSchema ? u"https:"_s + indirizzo : indirizzo);
    if (!url || !eYouTube(url->host()))
        return std::nullopt;
    QUrl provenienza = sito;
    provenienza.setScheme(url->scheme());
    const QString html =
        u"<!doctype html><html><head><meta name=\"referrer\" content=\"origin\">"
        "<style>html,body,iframe{margin:0;border:0;width:100%;height:100%;overflow:hidden;"
        "background:#000}</style></head><body><iframe src=\"%1\" allow=\"autoplay; encrypted-media; "
        "fullscreen\"></iframe></body></html>"_s.arg(QString::fromLatin1(url->toEncoded()).toHtmlEscaped());
    return CorniceFilmato{html, provenienza};
}

} // namespace zuvora
