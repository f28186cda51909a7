#include "shell/logic/IndirizzoWeb.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace zuvora {
namespace {

TEST(IndirizzoWeb, TakesWebAddressesWithAndWithoutScheme) {
    const std::pair<QString, QString> casi[] = {
        {u"https://www.comune.example/news?a=1&b=è#x"_s, u"https://www.comune.example/news?a=1&b=è#x"_s},
        {u"  HTTP://Comune.Example/  "_s, u"http://comune.example/"_s},
        {u"www.comune.example"_s, u"http://www.comune.example"_s},
        {u"comune.example:8080/tg"_s, u"http://comune.example:8080/tg"_s},
        {u"192.0.2.7/tg.html"_s, u"http://192.0.2.7/tg.html"_s},
    };
    for (const auto &[testo, atteso] : casi) {
        const auto url = indirizzoWeb(testo);
        ASSERT_TRUE(url) << testo.toStdString();
        EXPECT_EQ(url->toString(), atteso);
    }
}

TEST(IndirizzoWeb, RefusesAllElse) {
    const QString rifiutati = u"| \t|file:///etc/passwd|/etc/passwd|./a.html|\\\\server\\file|C:\\tg.html|C:/tg.html|"
                              "javascript:alert(1)|data:text/html,x|about:blank|ftp://a.example/|mailto:a@b.example|"
                              "http://|http:///x|https:a|due parole|http://a.example/\nb|http://a.example:99999/|"
                              "http://[::1"_s;
    for (const QString &testo : rifiutati.split(u'|'))
        EXPECT_FALSE(indirizzoWeb(testo)) << testo.toStdString();
}

} // namespace
} // namespace zuvora
