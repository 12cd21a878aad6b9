#include "support/XMLFile.h"

#include "Test.h"

#include <filesystem>
#include <functional>

namespace zorvane {
namespace {

constexpr const char* kHeader = "<?xml version=\"1.0\"?>\r\n";

/// An XML file on the bytes of a temporary one.
struct Opened {
    explicit Opened(std::string_view bytes = {}) : file(bytes) { x.FileName(file.Path()); }

    /// What an action raises, as "number source: description" with FILE for the file's name; empty
    /// for nothing.
    String Fails(const std::function<void()>& action) const {
        const RaisedError error = RaisedBy(action);
        if (error.number == 0) return {};
        String text = std::to_string(error.number) + " " + error.source + ": " + error.description;
        const std::size_t at = text.find(file.Path());
        return at == text.npos ? text : text.replace(at, file.Path().size(), "FILE");
    }

    TempFile file;
    XMLFile x;
};

String HeaderOf(XMLFile& x) { return x.ReadXMLSectionHeader(); }

TEST(XMLFile, WritesEveryKindOfLine) {
    Opened opened;
    XMLFile& x = opened.x;
    x.OpenXMLSection("A");
    x.WriteXMLMember("B", "x<y & 'z' > \"q\"");
    x.OpenXMLSection("Inner", "Index=\"3\"");
    x.WriteXMLMember("Empty", "");
    x.WriteXMLMember("Empty", "", "kind=\"tag\"");
    x.WriteXMLMember("Member", "text", "kind=\"<tag>\"");
    x.WriteXMLMember("Suppressed", "", {}, true);
    x.WriteXMLMember("Suppressed", "not", {}, true);
    x.WriteXMLBooleanValue("Yes", true);
    x.WriteXMLBooleanValue("No", false);
    x.WriteXMLBooleanValue("Suppressed", false, true);
    x.WriteXMLStringValue("Text", "a\"b", "t");
    x.WriteXMLStringValue("Nothing", "");
    x.WriteXMLIntegerValue("Number", -2147483647 - 1);
    x.WriteXMLIntegerValue("Number", 0);
    x.WriteXMLIntegerValue("Suppressed", 0, true);
    x.WriteXMLFloatValue("General", 1e-5);
    x.WriteXMLFloatValue("Picture", " 1234.5 ", "#,##0.00");
    x.WriteXMLFloatValue("Zero", 0);
    x.WriteXMLFloatValue("Suppressed", "0.0", {}, true);
    EXPECT_EQ(NumberRaisedBy([&] { x.WriteXMLFloatValue("Word", "much"); }), 13);
    x.CloseXMLSection();
    x.WriteXMLData("<as it=is>&\r\n");
    EXPECT_TRUE(x.IsOpenForWriting());
    EXPECT_FALSE(x.IsOpenForReading());
    x.CloseXMLSection();
    x.CloseXMLFile();
    EXPECT_FALSE(x.IsOpenForWriting());
    EXPECT_EQ(opened.file.Bytes(), String(kHeader) +
                                       "<A>\r\n"
                                       " <B>x&lt;y &amp; &#39;z&#39; &gt; &quot;q&quot;</B>\r\n"
                                       " <Inner Index=\"3\">\r\n"
                                       "  <Empty/>\r\n"
                                       "  <Empty kind=\"tag\"></Empty>\r\n"
                                       "  <Member kind=\"<tag>\">text</Member>\r\n"
                                       "  <Suppressed>not</Suppressed>\r\n"
                                       "  <Yes>Yes</Yes>\r\n"
                                       "  <No>No</No>\r\n"
                                       "  <Text t>&quot;a&quot;&quot;b&quot;</Text>\r\n"
                                       "  <Number>-2147483648</Number>\r\n"
                                       "  <Number>0</Number>\r\n"
                                       "  <General>1E-05</General>\r\n"
                                       "  <Picture>1,234.50</Picture>\r\n"
                                       "  <Zero>0</Zero>\r\n"
                                       " </Inner>\r\n"
                                       " <as it=is>&\r\n\r\n"
                                       "</A>\r\n");
}

TEST(XMLFile, UndoesEscapesOnceInDataAndTwiceInStringValues) {
    const struct {
        const char* source;
        const char* once;
        const char* twice;
    } rows[] = {
        {"a", "a", "a"},
        {"&#39;&lt;&gt;&quot;&amp;", "'<>\"&", "'<>\"&"},
        {"&amp;lt;", "&lt;", "<"},
        {"&amp;amp;lt;", "&amp;lt;", "&lt;"},
        {"& &lt &LT; &#60; &am&amp;p;", "& &lt &LT; &#60; &am&p;", "& &lt &LT; &#60; &am&p;"}};
    for (const auto& row : rows) {
        const String member = String("<V>") + row.source + "</V>";
        Opened opened(kHeader + member + member);
        HeaderOf(opened.x);
        EXPECT_EQ(opened.x.ReadXMLData(), row.once) << row.source;
        HeaderOf(opened.x);
        EXPECT_EQ(opened.x.ReadXMLStringValue(), row.twice) << row.source;
    }
}

TEST(XMLFile, ReadsSectionsAttributesAndData) {
    Opened opened("  <?xml version =\"1.0\" standalone ?> <Ignored>\n\n \t\r"
                  "noise <A Index=\"1\" x   = \"y z\"   Image=\"&lt;\" plain  >\r\n"
                  "\t first \r\n\r\n  second&amp;  \n third <B/><C/><B>last</B></A><D/ E=\"f\">");
    XMLFile& x = opened.x;
    const auto next = [&x] {
        const String header = HeaderOf(x) + " " + x.SectionTagName() + "=" + x.SectionTagValue();
        const String data = x.ReadXMLData();
        return header + " " + data + (x.SectionComplete() ? "; ended " : "; in ") + x.Section();
    };
    EXPECT_EQ(next(), "A plain=y z firstsecond&third ; in ");
    EXPECT_EQ(x.SectionIndex() + x.SectionImage(), "1&lt;");
    EXPECT_EQ(next(), "B = ; ended B"); // the one closed last
    EXPECT_EQ(x.ReadXMLData(), "");
    EXPECT_FALSE(x.SectionComplete());
    EXPECT_EQ(next(), "C = ; ended C");
    EXPECT_EQ(x.ReadXMLData(), "");
    EXPECT_EQ(next(), "B = last; ended B");
    EXPECT_EQ(x.SectionIndex(), "1"); // that of A again
    EXPECT_EQ(HeaderOf(x), "/A");
    EXPECT_EQ(HeaderOf(x), "D");
    EXPECT_EQ(x.SectionTagName() + "=" + x.SectionTagValue(), "E=f");
    EXPECT_EQ(HeaderOf(x), "/D");
}

TEST(XMLFile, RaisesTheErrorOfEachBadFile) {
    const char* const notOpened = "1050 XMLFile: Could not open XMLFile <FILE> for reading.";
    const char* const notRead = "1051 XMLFile: Could not read data from XMLFile <FILE>";
    const char* const noHeader = "1055 XML section header missing in file FILE: "
                                 "Application-defined or object-defined error";
    const char* const outside = "9 Zorvane: Subscript out of range";
    const auto notEnded = [](const char* name) {
        return String("1055 XML Read Data: Section end </") + name + "> not found in file FILE";
    };
    const char* const unquoted =
        "1055 XML Read Data: Missing quotes in section <A> tag value in file FILE";
    const struct {
        const char* lines; ///< a "!" in front stands for no header line
        String header;     ///< what reading a header raises
        String data;       ///< what reading data then raises
    } rows[] = {
        {"!", notOpened, notRead},
        {"!<A>", notOpened, ""}, // the first line stays in the buffer
        {"!<?xml version=\"1.1\"?>", notOpened, ""},
        {"!<?xml version=\"1.0\">", notOpened, ""},
        {"", notRead, notRead},
        {" \r\n\t", notRead, notRead},
        {"<A", noHeader, notRead},
        {"<A\r\nb=\"c\">", noHeader, notRead},
        {"<A>text", "", notRead},
        {"<A>text</a>", "", notEnded("A")},
        {"<A>text</A", "", notEnded("A")},
        {"<A>text</\r\nA>", "", notEnded("A")},
        {"<A>text<B>", "", ""},
        {"</A>", outside, notRead},
        {"text</A>", outside, notRead},
        {"<A b=c>", unquoted, notRead},
        {"<A b=>", unquoted, notRead},
        {"<A b=\"c>", unquoted, notRead},
        {"<A b=\"c\" d=\"\r\n\">", noHeader, notRead},
        {"<A b />", "", notRead}, // no empty member: the section stays open
    };
    for (const auto& row : rows) {
        const bool bare = row.lines[0] == '!';
        Opened opened(bare ? String(row.lines + 1) : kHeader + String(row.lines));
        EXPECT_EQ(opened.Fails([&] { HeaderOf(opened.x); }), row.header) << row.lines;
        EXPECT_EQ(opened.Fails([&] { opened.x.ReadXMLData(); }), row.data) << row.lines;
        EXPECT_FALSE(opened.x.SectionComplete()) << row.lines;
        EXPECT_TRUE(opened.x.IsOpenForReading()) << row.lines;
    }
    Opened mixed(String(kHeader) + "<A>\r\n<B>\r\n</A>\r\n");
    HeaderOf(mixed.x);
    HeaderOf(mixed.x);
    EXPECT_EQ(mixed.Fails([&] { HeaderOf(mixed.x); }), notEnded("B"));
}

TEST(XMLFile, SaysThatTheFileCannotBeWritten) {
    Opened opened;
    XMLFile& x = opened.x;
    x.FileName(testing::TempDir() + "missing/a.xml");
    const RaisedError error = RaisedBy([&] { x.WriteXMLData("x"); });
    EXPECT_EQ(error.description, "Could not write data to XMLFile <" + x.FileName() + ">");
    EXPECT_EQ(error.number, 1053);
    EXPECT_FALSE(x.IsOpenForWriting());
    if (std::filesystem::exists("/dev/full")) {
        x.FileName("/dev/full");
        EXPECT_EQ(NumberRaisedBy([&] { x.WriteXMLData(String(1000000, 'x')); }), 1053);
        EXPECT_FALSE(x.IsOpenForWriting());
        x.WriteXMLData("kept back until the file is closed");
        EXPECT_EQ(NumberRaisedBy([&] { x.CloseXMLFile(); }), 1053);
    }
    x.FileName(opened.file.Path());
    x.WriteXMLData("x");
    x.CloseXMLFile();
    EXPECT_EQ(opened.file.Bytes(), String(kHeader) + "x\r\n");
}

TEST(XMLFile, NestsSeventeenSectionsAndEndsNoMoreThanItBegan) {
    Opened opened;
    for (int depth = 0; depth < 17; ++depth)
        opened.x.OpenXMLSection("S");
    EXPECT_EQ(NumberRaisedBy([&] { opened.x.OpenXMLSection("S"); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { opened.x.Section(); }), 9);
    for (int depth = 0; depth < 17; ++depth)
        opened.x.CloseXMLSection();
    EXPECT_EQ(NumberRaisedBy([&] { opened.x.CloseXMLSection(); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { opened.x.OpenXMLSection("S"); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { HeaderOf(opened.x); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { opened.x.WriteXMLData("outside"); }), 0);
    EXPECT_EQ(opened.x.Section(), "");
    opened.x.CloseXMLFile();

    XMLFile reading;
    reading.FileName(opened.file.Path());
    for (int depth = 0; depth < 17; ++depth)
        HeaderOf(reading);
    EXPECT_EQ(NumberRaisedBy([&] { HeaderOf(reading); }), 9);
    EXPECT_EQ(NumberRaisedBy([&] { XMLFile().SectionIndex(); }), 9);
}

} // namespace
} // namespace zorvane
