#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
#include "base/joined.h"
#include "core/document.h"
#include "core/record_reader.h"
#include "example_state.h"

namespace tessaplot::core {
namespace {

using data::DataKind;

/// Plain tokens "n n+1 ..." of which every one is different.
std::string numbers(int from, int to) {
    std::string text;
    for (int n = from; n <= to; ++n)
        text += std::to_string(n) + ' ';
    return text;
}

/// One slice: position 5 with a fraction, shows contours only, three numbers.
const std::string sliceTokens = "5.25 0 1 0 7.5 8 9 ";

/// A graph record of a generation in which each number tells where it stood.
std::string recordOfGeneration(int generation) {
    std::string text = "43 17 ";
    text += generation == 0 ? "name " : "@two words@ ";
    text += numbers(101, 111) + "1.5 0 1 2.5 1 " + numbers(112, 115) + "3.5 " + numbers(116, 118) + "4.5 " +
            numbers(119, 126) + "1 ";
    if (generation >= 1) text += "127 128 1 " + sliceTokens + "0 2 " + sliceTokens + sliceTokens + "1 2 0 0.75 @@ ";
    if (generation >= 2) text += "0 1 129 130 ";
    if (generation >= 3) text += "@MY  MAP@ 2 0 1 2 3 100 4 5 6 " + numbers(201, 204) + numbers(205, 212);
    return text + "6.5 131 4 103 ";
}

const std::string axisTokens = "1 0 1 0 1 0 1 0 1 0 3 4 5 @@ @a b@ @c@ " + numbers(1, 11) + "1 ";

class Generation : public testing::TestWithParam<int> {};

TEST_P(Generation, recordIsReadTokenByTokenAndSavedAsTheNewest) {
    const int generation = GetParam();
    graphs::Cls9 graph;
    data::GriddingChoice gridding;
    const std::string text = recordOfGeneration(generation);
    TokenReader in(text, tokenTableSize);
    readGraphRecord(in, generation, graph, gridding);
    EXPECT_EQ(in.peek(), "") << "every token is taken";
    EXPECT_EQ(joined(graph.GraphType, graph.LineColor, graph.FillStyle, graph.SecondColor, graph.Material, graph.StepV,
                     graph.PointColor, graph.PointSize, graph.ShowColormap, graph.ContourLevel, graph.ShowVector,
                     graph.GridWidth, graph.ContourLevels, graph.ConColor2, graph.Con3Width, graph.ColorMapcolor2,
                     graph.ShowIrregData, graph.IsoSurColor, gridding.VolumeGridMethod),
              " 43 101 103 105 106 110 111 1.5 0 2.5 1 115 3.5 118 122 126 1 131 103");
    EXPECT_EQ(joined(graph.Vect4DColor, graph.SlicesX.Num, graph.SlicesZ[2].VectColor, graph.SlicesX[1].ShowCont,
                     graph.TransAlpha),
              generation >= 1 ? " 128 1 9 1 0.75" : " 0 0 0 0 0");
    EXPECT_EQ(graph.TriWidth, generation >= 2 ? 130 : 0);
    EXPECT_EQ(joined(graph.NameS, graph.ColorName, graph.ColorNum, graph.ColorB(1), graph.SlicesZ[2].SecondEnd),
              generation == 0   ? " name  6 255 0"
              : generation >= 3 ? " two words MY  MAP 2 6 212"
                                : " two words  6 255 0");

    const std::string newest = graphRecord(graph, gridding);
    EXPECT_TRUE(generation < 3 || newest == text) << newest;
    graphs::Cls9 again;
    TokenReader second(newest, tokenTableSize);
    readGraphRecord(second, 4, again, gridding);
    EXPECT_EQ(graphRecord(again, gridding), newest);
}

TEST_P(Generation, wholeDocumentOfEveryKindIsReadAndBecomesTheNewest) {
    const int generation = GetParam();
    for (int kind = 0; kind < data::dataKindCount; ++kind) {
        AppState state;
        fillPanel(state.panel, static_cast<DataKind>(kind));
        const std::string newest = documentText(partsOf(state, state.AllGraphs));
        // The data record of an old generation is that of the newest without the colour column of surfaces.
        std::string old = generation == 0 ? "D1" : "D" + std::to_string(generation) + "1";
        const std::string data = newest.substr(newest.find(' ', newest.find(' ') + 1) + 1);
        TokenReader in(data, tokenTableSize);
        const auto keep = [&](int count) {
            for (int i = 0; i < count; ++i)
                old += ' ' + std::string(in.token());
        };
        old += " 1";
        const int headTokens[] = {3, 8, 4, 11, 3, 8, 3, 8};
        keep(headTokens[kind]);
        const bool threeColumns = generation < 4 && kind != 2 && kind != 3;
        for (int row = 1; row < state.panel.gridRows(); ++row) {
            keep(threeColumns ? 3 : 4);
            if (threeColumns) in.token();
        }
        old += ' ' + recordOfGeneration(generation) + axisTokens;
        if (generation == 4) old += "3 1 2 3 4";

        const auto document = readDocument(old);
        ASSERT_TRUE(document);
        EXPECT_EQ(document->generation, generation);
        EXPECT_EQ(static_cast<int>(document->panel.kind()), kind);
        ASSERT_EQ(document->graphs.size(), 1U);
        EXPECT_EQ(graphRecord(document->graphs[0], *document->gridding).substr(0, 5), "43 17");
        EXPECT_EQ(document->axis.TitleX, "");
        EXPECT_EQ(document->axis.TitleY, "a b");
        EXPECT_EQ(document->axis.AxisWidth, 11);
        EXPECT_EQ(document->scaling.has_value(), generation == 4);
        const int rows = state.panel.gridRows() - 1;
        EXPECT_EQ(document->panel.cell(3, rows), state.panel.cell(3, rows));
        EXPECT_EQ(document->panel.cell(4, rows), threeColumns ? "" : state.panel.cell(4, rows));
        for (int box = 1; box <= 10; ++box)
            if (!data::boxLabelsOf(state.panel.kind())[static_cast<std::size_t>(box) - 1].empty()) {
                EXPECT_EQ(document->panel.Text(box), state.panel.Text(box)) << "kind " << kind << " box " << box;
            }

        const auto textOf = [&](const Document& one) {
            return documentText({one.SceneMode,
                                 one.panel,
                                 {&one.graphs[0]},
                                 one.axis,
                                 one.scaling.value_or(state.scaling),
                                 *one.gridding});
        };
        const std::string saved = textOf(*document);
        EXPECT_TRUE(saved.starts_with("D41 1 "));
        const auto reread = readDocument(saved);
        ASSERT_TRUE(reread);
        EXPECT_EQ(textOf(*reread), saved);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Generation, testing::Range(0, 5));

TEST(DocumentText, stringsKeepTheirBlanksAndBrokenOnesDoNotSpread) {
    for (const std::string text : {"", "one", "two words", "two  blanks", " leading", "trailing ", " ", "   "}) {
        const std::string record = '@' + text + "@ next";
        TokenReader in(record, 1000);
        std::string value = "old";
        in.string(value);
        EXPECT_EQ(value, text);
        EXPECT_EQ(in.token(), "next");
    }
    TokenReader bare("bare next", 1000);
    std::string value = "old";
    bare.string(value);
    EXPECT_EQ(value, "old");
    EXPECT_EQ(bare.token(), "bare") << "a token without a mark is not consumed";
    const std::string endless = "@start" + std::string(150, ' ') + "end@";
    TokenReader open(endless, 1000);
    open.string(value);
    EXPECT_EQ(value, "old");
    EXPECT_EQ(open.token(), "") << "reading goes on after the first token";
}

TEST(DocumentText, refusesTablesThatOverflow) {
    EXPECT_THROW(readDocument("D41 0 1 200 101 "), base::Failure) << "rows beyond the store";
    EXPECT_THROW(readDocument("D41 2000000000 1 1 1 1 2 3 4"), base::Failure) << "graphs beyond the tokens";
    EXPECT_THROW(readDocument("D41 0 1 1 1" + std::string(500000, ' ')), base::Failure);
    EXPECT_THROW(readDocument("D41 0 1 1e999 1"), base::Failure);
    std::string slices = recordOfGeneration(1);
    slices.replace(slices.find(" 127 128 1 "), 11, " 127 128 51 ");
    EXPECT_THROW(readDocument("D11 1 1 0 0 " + slices), base::Failure);
    EXPECT_FALSE(readDocument("D44 0 1 1 1"));
    EXPECT_FALSE(readDocument(""));
}

TEST(DocumentText, aTextCutAnywhereIsReadOrRefusedButNeverHangs) {
    AppState state;
    fillPanel(state.panel, DataKind::RegularSurface);
    addGraph(state, graphs::graph_type::gridModel);
    const std::string whole = documentText(partsOf(state, state.AllGraphs));
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        try {
            const auto document = readDocument(whole.substr(0, length));
            EXPECT_EQ(document.has_value(), length >= 2 && whole.substr(0, length) != "D4") << length;
            EXPECT_TRUE(!document || length <= 10 || document->graphs.size() == 1U) << length;
        } catch (const base::Failure&) {
        }
    }
}

TEST(DocumentText, cellsAreStoredAsFileText) {
    AppState state;
    fillPanel(state.panel, DataKind::RegularSurface);
    state.panel.setCell(1, 1, "1,5");
    state.panel.setCell(2, 1, "1 2");
    state.panel.setCell(3, 1, "5%");
    state.panel.setCell(4, 1, "2*x");
    EXPECT_THAT(documentText(partsOf(state, state.AllGraphs)), testing::StartsWith("D41 0 1 3 3 1.5 12  2*x "));
    state.panel.setText(1, "");
    EXPECT_THAT(documentText(partsOf(state, state.AllGraphs)), testing::StartsWith("D41 0 1  3 0 0 0 0 1 1"));
}

}  // namespace
}  // namespace tessaplot::core
