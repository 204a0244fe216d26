#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "data/text_table.h"
#include "ui/demo_table.h"

namespace tessaplot {
namespace {

namespace fs = std::filesystem;
using testing::Contains;

const fs::path root = TESSAPLOT_ROOT;

/// A page in Markdown: its text without code, and its code blocks.
struct Page {
    fs::path path;
    std::string text;
    std::vector<std::string> headings;
    std::vector<std::pair<std::string, std::string>> blocks;  ///< Kind and content of each fenced block.
};

/// The name by which links lead to a heading.
std::string anchorOf(const std::string& heading) {
    std::string anchor;
    for (const char c : heading) {
        const auto letter = static_cast<unsigned char>(c);
        if (std::isalnum(letter) != 0) anchor += static_cast<char>(std::tolower(letter));
        if (c == ' ' || c == '-') anchor += '-';
    }
    return anchor;
}

Page readPage(const fs::path& path) {
    Page page{path, {}, {}, {}};
    std::ifstream file(path);
    bool inBlock = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("```")) {
            inBlock = !inBlock;
            if (inBlock) page.blocks.emplace_back(line.substr(3), "");
        } else if (inBlock) {
            page.blocks.back().second += line + '\n';
        } else if (!line.starts_with("    ")) {
            page.text += line + '\n';
            if (line.starts_with("#")) page.headings.push_back(anchorOf(line.substr(line.find(' ') + 1)));
        }
    }
    return page;
}

std::vector<Page> allPages() {
    std::vector<Page> pages;
    for (const fs::path& folder : {root, root / "docs", root / "docs/guide"})
        for (const auto& entry : fs::directory_iterator(folder))
            if (entry.path().extension() == ".md") pages.push_back(readPage(entry.path()));
    return pages;
}

/// The targets of links and pictures.
std::vector<std::string> targetsIn(const Page& page) {
    static const std::regex link(R"(\]\(([^)\s]+)\))");
    std::vector<std::string> targets;
    for (std::sregex_iterator at(page.text.begin(), page.text.end(), link), end; at != end; ++at)
        targets.push_back((*at)[1]);
    return targets;
}

std::vector<double> numbersBelowTheFirstLine(const std::string& text) {
    std::istringstream stream(text.substr(text.find('\n')));
    return {std::istream_iterator<double>(stream), {}};
}

/// The table of a panel, row after row.
std::vector<double> tableOf(const data::DataPanel& panel) {
    std::vector<double> numbers;
    for (int row = 1; row <= panel.dataRows(); ++row)
        for (int column = 1; column <= 4; ++column)
            numbers.push_back(base::TextValue(panel.cell(column, row)));
    return numbers;
}

TEST(Documentation, everyLinkLeadsToAFileOrAHeading) {
    const std::vector<Page> pages = allPages();
    ASSERT_GT(pages.size(), 10U);
    int links = 0;
    for (const Page& page : pages) {
        for (const std::string& target : targetsIn(page)) {
            if (target.find("://") != std::string::npos) continue;
            SCOPED_TRACE(page.path.string() + " -> " + target);
            ++links;
            const std::size_t hash = std::min(target.find('#'), target.size());
            const fs::path file = hash == 0 ? page.path : page.path.parent_path() / target.substr(0, hash);
            EXPECT_TRUE(fs::exists(file));
            if (hash < target.size()) {
                EXPECT_THAT(readPage(file).headings, Contains(target.substr(hash + 1)));
            }
        }
    }
    EXPECT_GT(links, 80);
}

TEST(Documentation, everyPictureAndSampleIsShownSomewhere) {
    std::set<fs::path> shown;
    for (const Page& page : allPages())
        for (const std::string& target : targetsIn(page))
            shown.insert((page.path.parent_path() / target).lexically_normal());
    for (const auto& entry : fs::recursive_directory_iterator(root / "docs/images"))
        EXPECT_TRUE(!entry.is_regular_file() || shown.contains(entry.path().lexically_normal())) << entry.path();
    const std::vector<std::string> targets = targetsIn(readPage(root / "docs/gallery.md"));
    for (const ui::Demo& demo : ui::demos())
        EXPECT_THAT(targets, Contains("images/samples/" + fs::path(demo.fileName).stem().string() + ".png"));
}

TEST(Documentation, everyTableOfTheGuideIsReadWhole) {
    int tables = 0;
    for (const auto& [kind, content] : readPage(root / "docs/guide/data.md").blocks) {
        if (kind != "data") continue;
        SCOPED_TRACE(content);
        ++tables;
        data::DataPanel panel;
        EXPECT_TRUE(data::importText(panel, content));
        EXPECT_EQ(tableOf(panel), numbersBelowTheFirstLine(content));
        if (data::isIrregular(panel.kind())) continue;  // A text tells no limits for the grid of scattered points.
        data::Scaling scaling;
        EXPECT_NO_THROW(data::ClsData().GetData(panel, scaling, {}, {}));
    }
    EXPECT_EQ(tables, 8);
}

}  // namespace
}  // namespace tessaplot
