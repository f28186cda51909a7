#include "content/logic/EstraiUrl.h"
#include "content/logic/CorniceFilmato.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

struct Caso {
    QString codice;
    std::optional<QString> url; // without the tail
};

TEST(EstraiUrl, CuttingTheAddressOut) {
    const Caso casi[] = {
        {u"<iframe width=\"560\" src=\"https://www.youtube.com/embed/videoseries?list=PLabC\" frameborder=\"0\">"_s,
         u"https://www.youtube.com/embed/videoseries?list=PLabC"_s},
        {u"src=\"\" frameborder"_s, u""_s},
        // The first of each counts, wherever it stands.
        {u"src=\"a\" src=\"b\" frameborder frameborder"_s, u"a\" src=\"b"_s},
        // Without "src=" the cut begins at the fifth character: not noticed as wrong.
        {u"<iframe title=\"x\" frameborder"_s, u"ame title=\"x"_s},
        {u"1234 frameborder"_s, std::nullopt},
        {u"12345 frameborder"_s, u""_s},
        {u"<iframe src=\"https://x/\">"_s, std::nullopt},
        {u"frameborder=\"0\" src=\"https://x/\""_s, std::nullopt},
        {u"SRC=\"https://x/\" FRAMEBORDER"_s, std::nullopt},
        {u"src=frameborder"_s, std::nullopt},
        {u""_s, std::nullopt},
    };
    for (const Caso &caso : casi) {
        const auto esito = EstraiUrl(caso.codice);
        ASSERT_EQ(esito.has_value(), caso.url.has_value()) << caso.codice.toStdString();
        if (esito) {
            EXPECT_EQ(*esito, *caso.url + u"&autoplay=1&autohide=1"_s) << caso.codice.toStdString();
        }
    }
}

TEST(CorniceFilmato, OnlyForFilmsOfYouTube) {
    const QUrl sito(u"https://www.zuvora.example/"_s);
    const struct {
        QString indirizzo;
        const char *src; // null: shown by itself
        const char *provenienza;
    } casi[] = {
        {u"https://www.youtube.com/embed/videoseries?list=PL1&autoplay=1"_s,
         "src=\"https://www.youtube.com/embed/videoseries?list=PL1&amp;autoplay=1\"", "https://www.zuvora.example/"},
        {u"http://www.youtube-nocookie.com/embed/x"_s, "src=\"http://www.youtube-nocookie.com/embed/x\"",
         "http://www.zuvora.example/"},
        {u"//www.youtube.com/embed/x"_s, "src=\"https://www.youtube.com/embed/x\"", "https://www.zuvora.example/"},
        {u"https://www.youtube.com/x\"><script>"_s, "src=\"https://www.youtube.com/x%22%3E%3Cscript%3E\"",
         "https://www.zuvora.example/"},
        {u"https://notyoutube.com/embed/x"_s, nullptr, nullptr},
        {u"https://www.youtube.com.example/x"_s, nullptr, nullptr},
        {u"senza indirizzo"_s, nullptr, nullptr},
    };
    for (const auto &caso : casi) {
        const auto cornice = corniceFilmato(caso.indirizzo, sito);
        ASSERT_EQ(cornice.has_value(), caso.src != nullptr) << caso.indirizzo.toStdString();
        if (cornice) {
            EXPECT_TRUE(cornice->html.contains(QLatin1StringView(caso.src))) << cornice->html.toStdString();
            EXPECT_EQ(cornice->provenienza, QUrl(QString::fromLatin1(caso.provenienza)));
        }
    }
}

} // namespace
} // namespace zuvora
