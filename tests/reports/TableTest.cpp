// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <limits>
#include <memory>
#include <rapidjson/document.h>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "reports/AlignedText.h"
#include "reports/CsvTable.h"
#include "reports/JsonTable.h"

namespace {

using reports::CsvTable;
using reports::JsonTable;
using reports::TableOutput;

constexpr std::array<std::string_view, 2> kColumns = {"name", "value"};

template <typename Table>
std::string Written(const std::function<void(TableOutput&)>& rows) {
  modAllPurpose::TextReport text;
  Table table(text);
  table.Begin(kColumns);
  rows(table);
  table.End();
  return text.Text();
}

template <typename Number>
std::string CsvOf(Number number) {
  const std::string text = Written<CsvTable>([number](TableOutput& table) {
    table.Text("n");
    table.Number(number);
    table.EndRow();
  });
  const std::string_view before = "name,value\nn,";
  return text.substr(before.size(), text.size() - before.size() - 1);
}

TEST(CsvTable, BeginsWithTheNamesOfItsColumns) {
  EXPECT_EQ(Written<CsvTable>([](TableOutput&) {}), "name,value\n");
}

// The table whose rows are made in two parts, between which one has none; each part handed over in
// pieces of three characters.
template <typename Table>
std::string WrittenInParts() {
  modAllPurpose::TextReport whole;
  Table table(whole);
  table.Begin(kColumns);
  for (const std::vector<std::string>& names : {std::vector<std::string>{"a", "b"}, {}, {"c"}}) {
    modAllPurpose::TextReport text;
    Table part(text);
    part.BeginPart(kColumns);
    for (const std::string& name : names) {
      part.Text(name);
      part.Missing();
      part.EndRow();
    }
    for (std::size_t i = 0; i < text.Text().size(); i += 3) table.AddPart(text.Text().substr(i, 3));
  }
  table.End();
  return whole.Text();
}

template <typename Table>
std::string WrittenAtOnce() {
  return Written<Table>([](TableOutput& table) {
    for (const char* name : {"a", "b", "c"}) {
      table.Text(name);
      table.Missing();
      table.EndRow();
    }
  });
}

TEST(TextTables, InPartsAreTheTextsOfThoseAtOnce) {
  EXPECT_EQ(WrittenInParts<CsvTable>(), WrittenAtOnce<CsvTable>());
  EXPECT_EQ(WrittenInParts<JsonTable>(), WrittenAtOnce<JsonTable>());
}

TEST(CsvTable, QuotesATextOnlyWhereItNeedsIt) {
  const auto field = [](std::string_view text) {
    const std::string written = Written<CsvTable>([text](TableOutput& table) {
      table.Text(text);
      table.Missing();
      table.EndRow();
    });
    return written.substr(kColumns[0].size() + kColumns[1].size() + 2);
  };
  EXPECT_EQ(field("plain text"), "plain text,\n");
  EXPECT_EQ(field("a,b"), "\"a,b\",\n");
  EXPECT_EQ(field("say \"a\""), "\"say \"\"a\"\"\",\n");
  EXPECT_EQ(field("two\nlines"), "\"two\nlines\",\n");
  EXPECT_EQ(field("cr\r"), "\"cr\r\",\n");
  EXPECT_EQ(field(""), ",\n");
}

TEST(CsvTable, WritesAFloatAsTheShortestTextOfThatFloat) {
  EXPECT_EQ(CsvOf(0.1F), "0.1");
  EXPECT_EQ(CsvOf(16777216.0F), "16777216");
  EXPECT_EQ(CsvOf(-2.5F), "-2.5");
  EXPECT_EQ(CsvOf(0.0F), "0");
  EXPECT_EQ(CsvOf(1.0F / 3.0F), "0.33333334");
  EXPECT_EQ(std::strtof(CsvOf(std::numeric_limits<float>::denorm_min()).c_str(), nullptr),
            std::numeric_limits<float>::denorm_min());
}

TEST(CsvTable, WritesADoubleAsTheShortestTextOfThatDouble) {
  EXPECT_EQ(CsvOf(0.1), "0.1");
  EXPECT_EQ(CsvOf(1.0 / 3.0), "0.3333333333333333");
  EXPECT_EQ(CsvOf(std::int64_t{-32768}), "-32768");
}

TEST(CsvTable, TakesWhatIsNotFiniteForMissing) {
  EXPECT_EQ(CsvOf(std::numeric_limits<float>::quiet_NaN()), "");
  EXPECT_EQ(CsvOf(std::numeric_limits<double>::infinity()), "");
  EXPECT_EQ(CsvOf(-std::numeric_limits<float>::infinity()), "");
}

TEST(CsvTable, ForgetsADroppedRow) {
  EXPECT_EQ(Written<CsvTable>([](TableOutput& table) {
              table.Text("half");
              table.DropRow();
              table.Text("whole");
              table.Number(1);
              table.EndRow();
            }),
            "name,value\nwhole,1\n");
}

rapidjson::Document Parsed(const std::string& text) {
  rapidjson::Document document;
  document.Parse(text.c_str());
  EXPECT_FALSE(document.HasParseError()) << text;
  return document;
}

TEST(JsonTable, IsAnEmptyArrayWithoutRows) {
  const auto document = Parsed(Written<JsonTable>([](TableOutput&) {}));
  ASSERT_TRUE(document.IsArray());
  EXPECT_EQ(document.Size(), 0U);
}

TEST(JsonTable, HoldsEachRowUnderTheNamesOfTheColumns) {
  const auto document = Parsed(Written<JsonTable>([](TableOutput& table) {
    table.Text("a \"b\"\n\xC3\xA4");
    table.Number(0.1F);
    table.EndRow();
    table.Text("half");
    table.DropRow();
    table.Text("");
    table.Number(std::numeric_limits<double>::quiet_NaN());
    table.EndRow();
  }));
  ASSERT_EQ(document.Size(), 2U);
  EXPECT_STREQ(document[0]["name"].GetString(), "a \"b\"\n\xC3\xA4");
  EXPECT_EQ(document[0]["value"].GetDouble(), 0.1);
  EXPECT_STREQ(document[1]["name"].GetString(), "");
  EXPECT_TRUE(document[1]["value"].IsNull());
}

std::string Aligned(const reports::AlignedText& table) {
  modAllPurpose::TextReport text;
  table.Print(text);
  return text.Text();
}

// Two rows of one beginning, an error in a third one, and one without it.
void RowsThatShare(TableOutput& table) {
  const std::string_view name = "a,b";
  table.BeginRowsWith({&name, 1});
  for (const float value : {1.5F, std::numeric_limits<float>::quiet_NaN()}) {
    table.Numbers({&value, 1});
    table.EndRow();
  }
  table.Number(3.0F);
  table.DropRow();
  table.Text("c");
  table.Number(4.0F);
  table.EndRow();
}

TEST(CsvTable, BeginsEachRowWithWhatTheyShareUntilOneIsDropped) {
  EXPECT_EQ(Written<CsvTable>(RowsThatShare), "name,value\n\"a,b\",1.5\n\"a,b\",\nc,4\n");
}

TEST(CsvTable, SharesAnEmptyTextToo) {
  const std::string written = Written<CsvTable>([](TableOutput& table) {
    const std::string_view empty;
    table.BeginRowsWith({&empty, 1});
    for (const std::int32_t value : {1, 2}) {
      table.Number(value);
      table.EndRow();
    }
  });
  EXPECT_EQ(written, "name,value\n,1\n,2\n");
}

TEST(JsonTable, BeginsEachRowWithWhatTheyShareUntilOneIsDropped) {
  EXPECT_EQ(Written<JsonTable>(RowsThatShare),
            "[\n{\"name\":\"a,b\",\"value\":1.5},\n{\"name\":\"a,b\",\"value\":null},\n"
            "{\"name\":\"c\",\"value\":4}\n]\n");
}

TEST(AlignedText, IsAsWideAsWhatItHolds) {
  reports::AlignedText table({{"name"}, {"n", reports::Align::Right}, {"unit"}});
  table.AddRow({"a", "12", "mm"});
  table.AddRow({"\xC3\xA4\xC3\xB6", "3", ""});
  EXPECT_EQ(Aligned(table),
            "name   n  unit\n"
            "a     12  mm\n"
            "\xC3\xA4\xC3\xB6     3\n");
}

TEST(AlignedText, LeavesOutHeadingsThatAreEmpty) {
  reports::AlignedText table({{""}, {""}});
  table.AddRow({"a", "b"});
  EXPECT_EQ(Aligned(table), "a  b\n");
}

TEST(AlignedText, ShowsControlCharactersAndBreaksNoRow) {
  reports::AlignedText table({{""}, {""}});
  table.AddRow({"a\nb\x1B[2J", std::string("mm\0\0", 4)});
  EXPECT_EQ(Aligned(table),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD[2J  mm\n");
}

}  // namespace
