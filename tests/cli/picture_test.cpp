#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "run_program.h"

namespace tessaplot {
namespace {

namespace fs = std::filesystem;

/// A document drawn at a small size and the picture that it is held against.
struct Reference {
    std::string name;
    std::string sample;
    std::vector<std::string> options;
};

std::ostream& operator<<(std::ostream& out, const Reference& reference) {
    return out << reference.name;
}

/// The differences of two pictures in all channels of all pixels, each from 0 to 255.
std::vector<int> differencesOf(const QImage& a, const QImage& b) {
    std::vector<int> differences;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int one : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)})
                differences.push_back(std::abs(one));
        }
    return differences;
}

/// The part of the picture that is not white.
QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255)) ink |= QRect(x, y, 1, 1);
    return ink;
}

class Picture : public testing::TestWithParam<Reference> {};

/// Lines of software drivers differ by version, a changed scene differs everywhere: the mean tells them apart.
TEST_P(Picture, isTheReferenceAndIsFittedOnWhiteGround) {
    const Reference& wanted = GetParam();
    fs::create_directories(TESSAPLOT_PICTURES);
    const std::string result = std::string(TESSAPLOT_PICTURES) + "/" + wanted.name + ".png";
    std::vector<std::string> arguments{"render", std::string(TESSAPLOT_SAMPLES) + "/" + wanted.sample + ".tsp", result,
                                       "--size", "200x160"};
    arguments.insert(arguments.end(), wanted.options.begin(), wanted.options.end());
    const ProgramRun run = cli(arguments);
    ASSERT_EQ(run.status, 0) << run.err;
    const QImage drawn(QString::fromStdString(result));
    ASSERT_EQ(drawn.size(), QSize(200, 160));
    const QRect ink = inkOf(drawn);
    EXPECT_TRUE(QRect(2, 2, 196, 156).contains(ink)) << "nothing is clipped at the border";
    EXPECT_GT(ink.height(), 60) << "the scene fills the picture";

    const QImage reference(QString::fromStdString(std::string(TESSAPLOT_REFERENCES) + "/" + wanted.name + ".png"));
    ASSERT_EQ(reference.size(), drawn.size()) << "no reference picture; look at " << result;
    const std::vector<int> differences = differencesOf(drawn, reference);
    const double sum = std::accumulate(differences.begin(), differences.end(), 0.0);
    EXPECT_LE(sum / static_cast<double>(differences.size()), 0.5) << result;
    EXPECT_LE(*std::ranges::max_element(differences), 96) << result;
}

INSTANTIATE_TEST_SUITE_P(Samples, Picture,
                         testing::Values(Reference{"grid_vertex_iso", "grid_vertex", {}},
                                         Reference{"cylinder_quick_right", "cylinder", {"--quick", "--view", "right"}},
                                         Reference{"sphere_top", "sphere", {"--view", "top"}},
                                         Reference{"surface_with_legend", "surface", {}},
                                         Reference{"delaunay_quick", "delaunay", {"--quick"}}),
                         testing::PrintToStringParamName());

TEST(PictureFormats, areTheSamePictureAtAnOddSize) {
    const TemporaryFolder folder;
    const std::string sample = std::string(TESSAPLOT_SAMPLES) + "/sphere.tsp";
    for (const char* name : {"a.png", "a.bmp", "a.pdf"})
        ASSERT_EQ(cli({"render", sample, folder / name, "--size", "101x57"}).status, 0) << name;
    const QImage png(QString::fromStdString(folder / "a.png"));
    EXPECT_EQ(QImage(QString::fromStdString(folder / "a.bmp")).convertToFormat(png.format()), png);
    EXPECT_EQ(bytesOf(folder / "a.pdf").substr(0, 5), "%PDF-");
}

}  // namespace
}  // namespace tessaplot
