#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/failure.h"
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
    EXPECT_EQ(graph.GraphType, 43);
    EXPECT_EQ(graph.NameS, generation == 0 ? "name" : "two words");
    EXPECT_EQ(graph.LineColor, 101);
    EXPECT_EQ(graph.FillStyle, 103);
    EXPECT_EQ(graph.SecondColor, 105);
    EXPECT_EQ(graph.Material, 106);
    EXPECT_EQ(graph.StepV, 110);
    EXPECT_EQ(graph.PointColor, 111);
    EXPECT_EQ(graph.PointSize, 1.5);
    EXPECT_FALSE(graph.ShowColormap);
    EXPECT_EQ(graph.ContourLevel, 2.5);
    EXPECT_TRUE(graph.ShowVector);
    EXPECT_EQ(graph.GridWidth, 115);
    EXPECT_EQ(graph.ContourLevels, 3.5);
    EXPECT_EQ(graph.ConColor2, 118);
    EXPECT_EQ(graph.Con3Width, 122);
    EXPECT_EQ(graph.ColorMapcolor2, 126);
    EXPECT_TRUE(graph.ShowIrregData);
    EXPECT_EQ(graph.Vect4DColor, generation >= 1 ? 128 : 0);
    EXPECT_EQ(graph.SlicesX.Num, generation >= 1 ? 1 : 0);
    EXPECT_EQ(graph.SlicesZ[2].VectColor, generation >= 1 ? 9 : 0);
    EXPECT_EQ(graph.SlicesX[1].ShowCont, generation >= 1);
    EXPECT_EQ(graph.TransAlpha, generation >= 1 ? 0.75 : 0);
    EXPECT_EQ(graph.TriWidth, generation >= 2 ? 130 : 0);
    EXPECT_EQ(graph.ColorName, generation >= 3 ? "MY  MAP" : "");
    EXPECT_EQ(graph.ColorNum, generation >= 3 ? 2 : 6);
    EXPECT_EQ(graph.ColorB(1), generation >= 3 ? 6 : 255);
    EXPECT_EQ(graph.SlicesZ[2].SecondEnd, generation >= 3 ? 212 : 0);
    EXPECT_EQ(graph.IsoSurColor, 131);
    EXPECT_EQ(gridding.VolumeGridMethod, 103);

    const std::string newest = graphRecord(graph, gridding);
    if (generation >= 3) {
        EXPECT_EQ(newest, text);
    }
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
        const std::string newest =
            documentText({state.scene.SceneMode, state.panel, {}, state.TheAxis, state.scaling, state.gridding});
        // The data record of an old generation is that of the newest without the colour column of surfaces.
        std::string old = generation == 0 ? "D1" : "D" + std::to_string(generation) + "1";
        std::string data = newest.substr(newest.find(' ', newest.find(' ') + 1) + 1);
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

        const DocumentParts parts{document->SceneMode, document->panel, {&document->graphs[0]},
                                  document->axis,      state.scaling,   *document->gridding};
        const std::string saved = documentText(parts);
        EXPECT_TRUE(saved.starts_with("D41 1 "));
        const auto reread = readDocument(saved);
        ASSERT_TRUE(reread);
        EXPECT_EQ(documentText({reread->SceneMode,
                                reread->panel,
                                {&reread->graphs[0]},
                                reread->axis,
                                *reread->scaling,
                                *reread->gridding}),
                  saved);
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
            if (document && length > 10) {
                EXPECT_EQ(document->graphs.size(), 1U);
            }
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
