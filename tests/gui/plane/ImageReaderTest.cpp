#include "gui/plane/surface/ImageReader.h"
#include "support/files/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{

/** Input for ImageMagick: how it creates the picture, and the file. */
struct Kind
{
    const char* options;
    const char* file;
};

const Kind kinds[] = {
    { "-depth 8 -define png:color-type=2", "rgb8.png" },
    { "-depth 16 -define png:color-type=2 -define png:bit-depth=16", "rgb16.png" },
    { "-depth 16 -define png:color-type=2 -define png:bit-depth=16 -interlace PNG", "rgb16i.png" },
    { "-depth 8 -define png:color-type=2 -interlace PNG", "rgb8i.png" },
    { "-alpha set -channel A -evaluate multiply 0.5 +channel -depth 8 -define png:color-type=6", "rgba8.png" },
    { "-alpha set -channel A -evaluate multiply 0.3 +channel -depth 16 -define png:color-type=6 "
      "-define png:bit-depth=16 -interlace PNG",
      "rgba16i.png" },
    { "-colorspace gray -depth 8 -define png:color-type=0 -define png:bit-depth=8", "grey8.png" },
    { "-colorspace gray -depth 16 -define png:color-type=0 -define png:bit-depth=16 -interlace PNG", "grey16i.png" },
    { "-colorspace gray -depth 4 -define png:color-type=0 -define png:bit-depth=4", "grey4.png" },
    { "-colorspace gray -depth 2 -define png:color-type=0 -define png:bit-depth=2 -interlace PNG", "grey2i.png" },
    { "-monochrome -define png:color-type=0 -define png:bit-depth=1", "grey1.png" },
    { "-alpha set -channel A -evaluate multiply 0.5 +channel -colorspace gray -define png:color-type=4", "greya.png" },
    { "-alpha set -channel A -evaluate multiply 0.5 +channel -colorspace gray -depth 16 -define png:color-type=4 "
      "-define png:bit-depth=16 -interlace PNG",
      "greya16i.png" },
    { "-colors 200 -define png:color-type=3 -define png:bit-depth=8", "palette8.png" },
    { "-colors 12 -define png:color-type=3 -define png:bit-depth=4 -interlace PNG", "palette4i.png" },
    { "-colors 3 -define png:color-type=3 -define png:bit-depth=2", "palette2.png" },
    { "-colors 2 -type palette", "palette1.png" },
    { "-transparent white -colors 30 -define png:color-type=3", "paletteClear.png" },
    { "-quality 92", "plain.jpg" },
    { "-quality 92 -sampling-factor 1x1", "full.jpg" },
    { "-quality 92 -interlace JPEG", "progressive.jpg" },
    { "-colorspace gray -quality 92", "grey.jpg" },
    { "-colorspace CMYK -quality 98 -sampling-factor 1x1", "cmyk.jpg" },
    { "-quality 92 -define jpeg:arithmetic-coding=on", "arithmetic.jpg" },
    { "-quality 92 -orient RightTop", "turned.jpg" },
};

bool run (const std::string& command) { return std::system (command.c_str()) == 0; }

/** The largest difference in any channel from ImageMagick's own decoding; the colours of transparent pixels are
    ignored. JUCE premultiplies by alpha, so one level of it can go unnoticed. */
int differenceFrom (const std::string& raw, const juce::Image& image)
{
    int most = 0;
    std::size_t at = 0;
    const auto byte = [&] (std::size_t i) { return int{ static_cast<unsigned char> (raw[i]) }; };
    for (int y = 0; y < image.getHeight(); ++y)
        for (int x = 0; x < image.getWidth(); ++x, at += 4) {
            const auto colour = image.getPixelAt (x, y);
            const int alpha = byte (at + 3);
            const int channels[] = { colour.getRed() - byte (at), colour.getGreen() - byte (at + 1),
                                     colour.getBlue() - byte (at + 2) };
            for (const int channel : channels)
                most = std::max (most, std::abs (channel) * alpha / 255);
            most = std::max (most, std::abs (colour.getAlpha() - alpha));
        }
    return most;
}

TEST (ImageReader, ReadsEveryKindThatImageMagickWrites)
{
    const ScratchFolder scratch;
    const auto at = [&] (const std::string& name) { return "'" + (scratch / name).string() + "'"; };
    ASSERT_TRUE (run ("convert -size 61x43 gradient:red-blue \\( -size 61x43 plasma:tomato-steelblue \\) "
                      "-compose blend -define compose:args=50 -composite -depth 16 " +
                      at ("source.miff")));
    for (const auto& [options, name] : kinds) {
        ASSERT_TRUE (run ("convert " + at ("source.miff") + " " + options + " " + at (name))) << name;
        ASSERT_TRUE (run ("convert " + at (name) + " -colorspace sRGB -alpha set -depth 8 rgba:" + at ("raw")));
        const auto image = lumo::Plane::ReadImage (juce::File ((scratch / name).string()));
        ASSERT_TRUE (image.isValid()) << name;
        ASSERT_EQ (image.getBounds(), juce::Rectangle<int> (61, 43)) << name;
        EXPECT_LE (differenceFrom (scratch.file ("raw").readAll().str(), image), 3) << name;
    }
}

TEST (ImageReader, ReadsAllOfAFileOrNothing)
{
    const ScratchFolder scratch;
    for (const char* name : { "a.png", "b.jpg" }) {
        ASSERT_TRUE (run ("convert -size 20x20 plasma: -depth 16 -interlace PNG '" + (scratch / name).string() + "'"));
        const auto whole = scratch.file (name).readAll().str();
        ASSERT_TRUE (lumo::Plane::ReadImage (juce::File ((scratch / name).string())).isValid());
        for (std::size_t size = 0; size + 2 < whole.size(); size += 19) {
            const auto cut = scratch.write ("cut", whole.substr (0, size));
            EXPECT_FALSE (lumo::Plane::ReadImage (juce::File (cut.path().str())).isValid()) << name << " " << size;
        }
    }
}

}
