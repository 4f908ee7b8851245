#include "core/json_writer.h"

#include <gtest/gtest.h>

#include "core/json_document.h"

namespace tidewatch {
namespace {

TEST(JsonWriterTest, WritesOneMemberALineWithTwoBlanksALevel) {
    JsonWriter writer;
    writer.beginObject();
    writer.key("a").string("text");
    writer.key("b").beginArray();
    writer.boolean(true);
    writer.beginObject();
    writer.key("c").boolean(false);
    writer.endObject();
    writer.endArray();
    writer.endObject();
    EXPECT_EQ(writer.take(),
              "{\n"
              "  \"a\" : \"text\",\n"
              "  \"b\" : [\n"
              "    true,\n"
              "    {\n"
              "      \"c\" : false\n"
              "    }\n"
              "  ]\n"
              "}");
}

TEST(JsonWriterTest, AnEmptyObjectOrArrayIsItsBracketsAroundAnEmptyLine) {
    JsonWriter writer;
    writer.beginObject();
    writer.key("array").beginArray();
    writer.endArray();
    writer.key("object").beginObject();
    writer.endObject();
    writer.endObject();
    EXPECT_EQ(writer.take(), "{\n  \"array\" : [\n\n  ],\n  \"object\" : {\n\n  }\n}");

    JsonWriter top;
    top.beginObject();
    top.endObject();
    EXPECT_EQ(top.take(), "{\n\n}");
}

TEST(JsonWriterTest, EscapesKeysAndTextsAlike) {
    JsonWriter writer;
    writer.beginObject();
    writer.key("a/b\"\n").string("\\ \t\x01 Audio/Vídeo");
    writer.endObject();
    EXPECT_EQ(writer.take(), "{\n  \"a\\/b\\\"\\n\" : \"\\\\ \\t\\u0001 Audio\\/Vídeo\"\n}");
}

TEST(JsonWriterTest, InvalidUtf8IsWrittenRepaired) {
    JsonWriter writer;
    writer.beginArray();
    writer.string("caf\xE9");
    writer.endArray();
    EXPECT_EQ(writer.take(), "[\n  \"caf\uFFFD\"\n]");
}

TEST(JsonDocumentTest, RejectsInvalidJson) {
    for (const auto* text : {"", " ", "{", "{} x", "\"\xFF\"", "nul"}) {
        EXPECT_FALSE(JsonDocument::parse(text)) << text;
    }
}

TEST(JsonDocumentTest, OutlivesItsTextAndMoves) {
    std::optional<JsonDocument> moved;
    {
        auto document = JsonDocument::parse("\xEF\xBB\xBF[\"a text that is long enough for the heap\"]");
        ASSERT_TRUE(document);
        moved.emplace(std::move(*document));
    }
    std::string_view text;
    ASSERT_EQ(moved->root().at(0).get_string().get(text), simdjson::SUCCESS);
    EXPECT_EQ(text, "a text that is long enough for the heap");
}

}  // namespace
}  // namespace tidewatch
