// Quotes, backslashes and "</script>" in what the user types: written exactly as typed,
// never escaped, whatever that does to the script or the tag.

#include <gtest/gtest.h>

#include "effects/DigitalClock.h"
#include "effects/InlineFrame.h"
#include "effects/JumpMenu.h"
#include "effects/Marquee.h"
#include "effects/PersonalGreeting.h"

namespace tessarine {
namespace {

const char* const kAwkward[] = {"O'Brien", "say \"hi\"", "C:\\web\\", "x</script>y", "<b>&amp;"};

TEST(EffectsBadInput, TypedTextsStandAsTyped) {
  for (const char* typed : kAwkward) {
    SCOPED_TRACE(typed);
    const std::string t = typed;

    PersonalGreeting g;
    g.askText = t;
    g.greeting = t;
    EXPECT_NE(g.Script().find("document.write('" + t + " ' + getCookie"), std::string::npos);
    EXPECT_NE(g.Script().find("window.prompt('" + t + "','')"), std::string::npos);
    g.askMethod = "Web page Form";
    EXPECT_NE(g.Script().find("document.write('<form>" + t + "<input"), std::string::npos);

    JumpMenu m;
    m.rows = {{t, t}};
    m.target = t;
    EXPECT_NE(m.Form().find("<OPTION VALUE=\"" + t + "\">" + t + "\r\n"), std::string::npos);
    EXPECT_NE(m.Script().find("frames['" + t + "']"), std::string::npos);

    DigitalClock c;
    c.font = t;
    EXPECT_NE(c.Markup().find(";font-family:" + t + ";"), std::string::npos);

    Marquee q;
    q.text = t;
    EXPECT_NE(q.Build(true).find(">" + t + "</MARQUEE>"), std::string::npos);

    InlineFrame f;
    f.url = t;
    f.width = f.height = "1";
    f.alternativeText = t;
    EXPECT_EQ(f.Build(true).substr(0, 13 + t.size()), "<IFRAME SRC=\"" + t);
    EXPECT_NE(f.Build(false).find(">" + t + "</iframe>"), std::string::npos);
  }
}

}  // namespace
}  // namespace tessarine
