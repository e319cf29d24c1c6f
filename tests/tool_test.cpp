// The dbgdata command-line tool, run as a separate process (its path comes
// from the environment variable DBGDATA_TOOL).
#include "consoleiodata.h"
#include "debuggerstatedata.h"
#include "selfcheck.h"
#include "serializerhelperDOM.h"
#include "testsupport.h"
#include "xmltext.h"

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

using namespace Vemo::DbgData;
namespace fs = std::filesystem;

namespace {

struct ToolRun {
  int status = -1;
  std::string out;
  std::string err;
};

std::string readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

std::size_t lineCount(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

class ToolTest : public ::testing::Test {
protected:
  void SetUp() override {
    const char* tool = std::getenv("DBGDATA_TOOL");
    if (!tool || !*tool)
      GTEST_SKIP() << "DBGDATA_TOOL is not set";
    m_tool = tool;
    std::string pattern =
        (fs::temp_directory_path() / "dbgdata-tool-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    m_dir = pattern;
  }
  void TearDown() override {
    if (!m_dir.empty())
      fs::remove_all(m_dir);
  }

  fs::path file(const std::string& name, const std::string& text) {
    std::ofstream(m_dir / name, std::ios::binary) << text;
    return m_dir / name;
  }
  // dump of text, through the text path or (dom) the DOM path.
  ToolRun dump(const std::string& text, bool dom = false) {
    return run(std::string("dump ") + (dom ? "--dom '" : "'") +
               file("in.xml", text).string() + "'");
  }

  // Runs the tool with arguments (already quoted for the shell), standard
  // input from stdinPath (or nothing).
  ToolRun run(const std::string& arguments, const fs::path& stdinPath = {}) {
    const fs::path out = m_dir / "stdout";
    const fs::path err = m_dir / "stderr";
    const std::string input =
        stdinPath.empty() ? "/dev/null" : stdinPath.string();
    const std::string command = "'" + m_tool + "' " + arguments + " <'" +
                                input + "' >'" + out.string() + "' 2>'" +
                                err.string() + "'";
    const int raw = std::system(command.c_str());
    ToolRun result;
    result.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : 1000 + raw;
    result.out = readFile(out);
    result.err = readFile(err);
    return result;
  }

  std::string m_tool;
  fs::path m_dir;
};

} // namespace

TEST_F(ToolTest, SelfCheckPassesAndUsageErrorsExitWithTwo) {
  for (const char* command : {"selfcheck", "selfcheck --dom"}) {
    const ToolRun check = run(command);
    EXPECT_EQ(check.status, 0) << command;
    EXPECT_EQ(check.err, "");
    EXPECT_GT(lineCount(check.out), 55u);
  }
  for (const char* wrong : {"", "frobnicate", "selfcheck extra", "key",
                            "dump a b", "dump --dom a b"})
    EXPECT_EQ(run(wrong).status, 2) << wrong;
  for (const char* help :
       {"--help", "-h", "selfcheck --help", "dump -h", "key --help"}) {
    const ToolRun shown = run(help);
    EXPECT_EQ(shown.status, 0) << help;
    EXPECT_EQ(shown.out.rfind("Usage: dbgdata", 0), 0u) << help;
  }
}

TEST_F(ToolTest, DumpOfLibraryWrittenXmlMatchesTheDirectDump) {
  std::string direct, flat, indented;
  {
    auto list = TestSupport::make<DataListWC>("DataListWC", "regs");
    auto line =
        TestSupport::make<ConsoleIOHistoryItem>("ConsoleIOHistoryItem", "7");
    auto scope = TestSupport::make<CurScope>("CurScope", "c");
    fillDataListWC(list.get());
    fillConsoleIOHistoryItem(line.get());
    fillCurScope(scope.get());
    SerializerHelperDOM writer;
    for (const DebuggerData* object :
         std::initializer_list<const DebuggerData*>{list.get(), line.get(),
                                                    scope.get()}) {
      ASSERT_TRUE(object->serialize(&writer));
      direct += TestSupport::dumpText(*object);
    }
    ASSERT_TRUE(writeXmlText(writer.getDocument(), false, &flat));
    ASSERT_TRUE(writeXmlText(writer.getDocument(), true, &indented));
  }
  ASSERT_NE(indented.find("\n  <"), std::string::npos);

  for (const char* option : {"", "--dom "}) {
    SCOPED_TRACE(option);
    const ToolRun fromFlat = run(std::string("dump ") + option + "'" +
                                 file("flat.xml", flat).string() + "'");
    EXPECT_EQ(fromFlat.status, 0) << fromFlat.err;
    EXPECT_EQ(fromFlat.out, direct);
    const ToolRun fromStdin = run(std::string("dump ") + option + "-",
                                  file("indented.xml", indented));
    EXPECT_EQ(fromStdin.status, 0) << fromStdin.err;
    EXPECT_EQ(fromStdin.out, direct);
    EXPECT_EQ(fromStdin.err, "");
  }
}

TEST_F(ToolTest, MalformedInputGivesOneLineAndExitTwo) {
  const std::string prompt =
      "<DataElement ClassName=\"CurDbgPrompt\" SubKey=\"p\"><attributes/>"
      "<values PromptText=\"&gt;\"/></DataElement>";
  const auto container = [](const std::string& inner) {
    return "<UserContentContainer>" + inner + "</UserContentContainer>";
  };
  // Each malformed text, and what its one line of diagnostics says through
  // the text path and through the DOM path.
  struct Case {
    std::string text;
    const char* fast;
    const char* dom;
  };
  const Case cases[] = {
      {"just text", "1:1: not XML", "1:1: not XML"},
      {"<UserContentContainer>\n<DataElement", "2:13: not XML",
       "2:13: not XML"},
      {"<Objects/>", "1:1: not the layout of serialized data",
       "document element is \"Objects\""},
      {"<Objects>" + prompt + "</Objects>", "document element is \"Objects\"",
       "document element is \"Objects\""},
      {container(""), "holds no data object", "holds no data object"},
      {container("<Child>" + prompt + "</Child>"), "holds no data object",
       "holds no data object (at /UserContentContainer)"},
      {container("<DataElement SubKey=\"s\"><attributes/><values/>"
                 "</DataElement>"),
       "object 1 (class \"\") cannot be made",
       "object 1 (class \"\") cannot be made"},
      {container("<DataList ClassName=\"DataList\" SubKey=\"l\"><List>x"
                 "</List></DataList>"),
       "1:71: not the layout of serialized data: text stands where",
       "text stands where an element holding a data object must be (at "
       "/UserContentContainer/DataList/List/text())"},
      {container("<DataList ClassName=\"DataList\" SubKey=\"l\"><List>"
                 "<Child/></List></DataList>"),
       "1:71: not the layout",
       "(at /UserContentContainer/DataList/List/Child)"},
      {container("<DataElement ClassName=\"Root\" SubKey=\"r\"><attributes/>"
                 "<values/><EngineData/></DataElement>"),
       "1:86: not the layout", "not the layout"},
      {container("<DataList ClassName=\"Root\" SubKey=\"l\"><List/>"
                 "</DataList>"),
       "object 1 (class \"Root\") cannot be made",
       "object 1 (class \"Root\") cannot be made"},
      {container(prompt + "<DataElement ClassName=\"Nope\" SubKey=\"n\">"
                          "<attributes/><values/></DataElement>"),
       "object 2 (class \"Nope\") cannot be made",
       "object 2 (class \"Nope\") cannot be made"},
      {"<!DOCTYPE UserContentContainer [<!ENTITY e \"e\">]>" + container(""),
       "1:1: a document type declaration is not accepted", "not XML"},
  };
  for (const Case& c : cases) {
    for (bool dom : {false, true}) {
      SCOPED_TRACE(c.text + (dom ? " --dom" : ""));
      const ToolRun result = dump(c.text, dom);
      EXPECT_EQ(result.status, 2);
      EXPECT_EQ(result.out, "");
      EXPECT_EQ(lineCount(result.err), 1u) << result.err;
      EXPECT_NE(result.err.find(dom ? c.dom : c.fast), std::string::npos)
          << result.err;
    }
  }

  const ToolRun missing =
      run("dump '" + (m_dir / "missing.xml").string() + "'");
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.err, "dbgdata: " + (m_dir / "missing.xml").string() +
                             ": cannot read: No such file or directory\n");

  // Comments and processing instructions between the children are not
  // seen by the reader walking the list, nor are elements that hold no
  // object under the container.
  for (bool dom : {false, true}) {
    const ToolRun commented =
        dump(container("<Other/><DataList ClassName=\"DataList\" SubKey=\"l\">"
                       "<List><!-- c --><?pi x?><Child>" +
                       prompt + "</Child></List></DataList>"),
             dom);
    EXPECT_EQ(commented.status, 0) << commented.err;
    EXPECT_NE(commented.out.find("PromptText=>"), std::string::npos);
  }
}

TEST_F(ToolTest, KeyPrintsPlaceConsumedKeyAndItemPositions) {
  const ToolRun parsed = run("key '/Root/ParallelJob[]/0/Jobs[]/1/Events/"
                             "BreakPoints[]/7' /Root/Console/CurDbgPrompt");
  EXPECT_EQ(parsed.status, 0);
  EXPECT_EQ(
      parsed.out,
      "/Root/ParallelJob[]/0/Jobs[]/1/Events/BreakPoints[]/7\n"
      "  place: 48 (item of BreakPointItem)\n"
      "  consumed: /Root/ParallelJob[]/0/Jobs[]/1/Events/BreakPoints[]/7\n"
      "  item positions: 2 4 7\n"
      "/Root/Console/CurDbgPrompt\n"
      "  place: 6 \"CurDbgPrompt\" (CurDbgPrompt)\n"
      "  consumed: /Root/Console/CurDbgPrompt\n"
      "  item positions: none\n");

  const ToolRun rejected = run("key /Root/Console/CurDbgPrompt/x /Root");
  EXPECT_EQ(rejected.status, 1);
  EXPECT_EQ(rejected.out.rfind("/Root/Console/CurDbgPrompt/x\n"
                               "  does not parse as a full key\n/Root\n",
                               0),
            0u);
}
