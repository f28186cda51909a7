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
    for (const QString &testo : {u""_s,
                                 u" \t"_s,
                                 u"file:///etc/passwd"_s,
                                 u"/etc/passwd"_s,
                                 u"./a.html"_s,
                                 u"\\\\server\\file"_s,
                                 u"C:\\tg.html"_s,
                                 u"C:/tg.html"_s,
                                 u"javascript:alert(1)"_s,
                                 u"data:text/html,x"_s,
                                 u"about:blank"_s,
                                 u"chrome://gpu"_s,
                                 u"view-source:http://a.example"_s,
                                 u"ftp://a.example/"_s,
                                 u"mailto:a@b.example"_s,
                                 u"http://"_s,
                                 u"http:///x"_s,
                                 u"https:a"_s,
                                 u"due parole"_s,
                                 u"http://a.example/\nb"_s,
                                 u"http://a.example:99999/"_s,
                                 u"http://[::1"_s})
        EXPECT_FALSE(indirizzoWeb(testo))
            << testo.toStdString() << " -> " << indirizzoWeb(testo)->toString().toStdString();
}

} // namespace
} // namespace zuvora
