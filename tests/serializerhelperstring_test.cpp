// Tests of the text dump writer.
#include "serializerhelperString.h"
#include "valuetypes.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace Vemo::DbgData;

namespace {

TEST(SerializerHelperStringTest, DumpOfALeafObjectAndUnbalancedPop) {
  SerializerHelperString writer;
  StringVector items;
  items.addItem("first");
  items.addItem("second");
  EXPECT_TRUE(writer.pushSection("DataElement"));
  EXPECT_TRUE(writer.setClassNameAndSubKey("ThreadItem", "12"));
  EXPECT_TRUE(writer.setBool("flag", true));
  EXPECT_TRUE(items.serialize("items", &writer));
  EXPECT_TRUE(writer.popSection());
  EXPECT_EQ(writer.getText(), "DataElement {\n"
                              "  ClassName=ThreadItem\n"
                              "  SubKey=12\n"
                              "  flag=true\n"
                              "  items_Size=2\n"
                              "  items_0=first\n"
                              "  items_0x1=second\n"
                              "}\n");

  // A pop without a push wraps the indentation around, which shows as none;
  // the next push brings it back to zero.
  SerializerHelperString unbalanced;
  unbalanced.popSection();
  unbalanced.setInt("a", 1);
  unbalanced.pushSection("S");
  unbalanced.setInt("b", 2);
  EXPECT_EQ(unbalanced.getText(), "}\na=1\nS {\nb=2\n");
}

// Every value operation writes exactly one line "key=value".
TEST(SerializerHelperStringTest, ValueTexts) {
  DbgDataKey key;
  key.append("Root").append("a/b");
  SerializerHelperString w;
  EXPECT_TRUE(w.setBool("b", false));
  EXPECT_TRUE(w.setInt("i", std::numeric_limits<int>::min()));
  EXPECT_TRUE(w.setInt("u", std::numeric_limits<unsigned int>::max()));
  EXPECT_TRUE(w.setInt("l", std::numeric_limits<long>::min()));
  EXPECT_TRUE(w.setInt("ul", std::numeric_limits<unsigned long>::max()));
  EXPECT_TRUE(w.setInt("ll", -1ll));
  EXPECT_TRUE(w.setInt("ull", 255ull));
  EXPECT_TRUE(w.setFloat("f", 0.0));
  EXPECT_TRUE(w.setFloat("f", -1.5));
  EXPECT_TRUE(w.setString("", "a=b\nc")); // written as it is
  EXPECT_TRUE(w.setAddress("A", Address(0, 0x401000, 0, 1, 32)));
  EXPECT_TRUE(w.setScope("S", Scope(Address(), key, 1, 2)));
  EXPECT_TRUE(w.setDbgDataKey("K", key));
  EXPECT_EQ(w.getText(),
            "b=false\ni=-2147483648\nu=4294967295\nl=-9223372036854775808\n"
            "ul=18446744073709551615\nll=-1\null=255\nf=0.000000\n"
            "f=-1.500000\n=a=b\nc\nA=Address( 1 32 0 401000 0 )Address\n"
            "S=Scope( Address( 4 32 0 0 0 )Address 2F526F6F742F615C2F6200 1 2 "
            ")Scope\nK=/Root/a\\/b\n");

  // The largest double still comes out whole.
  SerializerHelperString large;
  large.setFloat("max", std::numeric_limits<double>::max());
  EXPECT_EQ(large.getText().compare(0, 7, "max=179"), 0);
  EXPECT_EQ(large.getText().size(), 4 + 309 + 7 + 1u);
}

} // namespace
