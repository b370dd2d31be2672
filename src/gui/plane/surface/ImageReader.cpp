#include "gui/plane/surface/ImageReader.h"

#include <csetjmp>
#include <cstdio>

// After stdio: jpeglib.h uses its types without including it.
#include <jpeglib.h>

#include <jerror.h>
#include <png.h>

namespace lumo::Plane
{

namespace
{

constexpr juce::int64 largestFile = 256 * 1024 * 1024;
constexpr juce::int64 mostPixels = 64 * 1024 * 1024; // 256 MB decoded

bool IsReasonable (juce::int64 width, juce::int64 height)
{
    return width > 0 && height > 0 && width * height <= mostPixels;
}

juce::Image NewImage (juce::Image::PixelFormat format, juce::int64 width, juce::int64 height)
{
    return { format, static_cast<int> (width), static_cast<int> (height), false, juce::SoftwareImageType() };
}

// ---- PNG

struct PngReader
{
    png_structp png;
    png_infop info;
    const juce::MemoryBlock* bytes;
    std::size_t position;
    const juce::Image::BitmapData* pixels;
};

void TakeBytes (png_structp png, png_bytep target, std::size_t count)
{
    auto& reader = *static_cast<PngReader*> (png_get_io_ptr (png));
    if (count > reader.bytes->getSize() - reader.position)
        png_error (png, "cut short");
    reader.bytes->copyTo (target, static_cast<int> (reader.position), count);
    reader.position += count;
}

void FailPng (png_structp png, png_const_charp) { png_longjmp (png, 1); }
void PassOver (png_structp, png_const_charp) {}

void BeginPng (PngReader& reader)
{
    png_set_read_fn (reader.png, &reader, TakeBytes);
    png_read_info (reader.png, reader.info);
}

/** Decodes any PNG to 8-bit blue, green, red and alpha, JUCE's format except that colours are not premultiplied. Values
    are sRGB unless the file specifies another gamma. The library's simplified interface would be shorter, but decodes
    16-bit interlaced pictures wrongly. */
void DecodePng (PngReader& reader)
{
    auto* const png = reader.png;
    png_set_alpha_mode (png, PNG_ALPHA_PNG, PNG_DEFAULT_sRGB);
    png_set_expand (png);
    png_set_scale_16 (png);
    png_set_gray_to_rgb (png);
    png_set_add_alpha (png, 0xFF, PNG_FILLER_AFTER);
    png_set_bgr (png);
    const int passes = png_set_interlace_handling (png);
    png_read_update_info (png, reader.info);
    for (int pass = 0; pass < passes; ++pass)
        for (int y = 0; y < reader.pixels->height; ++y)
            png_read_row (png, reader.pixels->getLinePointer (y), nullptr);
    png_read_end (png, nullptr);
}

/** The library exits a failed step by longjmp, so that no object may be constructed in one. */
bool Succeeds (void (*step) (PngReader&), PngReader& reader)
{
    if (setjmp (png_jmpbuf (reader.png)) != 0) // NOLINT(cert-err52-cpp): required by the library
        return false;
    step (reader);
    return true;
}

void Premultiply (const juce::Image::BitmapData& pixels)
{
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x)
            reinterpret_cast<juce::PixelARGB*> (pixels.getPixelPointer (x, y))->premultiply();
}

juce::Image ReadPng (const juce::MemoryBlock& bytes)
{
    PngReader reader{};
    reader.bytes = &bytes;
    reader.png = png_create_read_struct (PNG_LIBPNG_VER_STRING, nullptr, FailPng, PassOver);
    reader.info = reader.png == nullptr ? nullptr : png_create_info_struct (reader.png);
    juce::Image image;
    if (reader.info != nullptr && Succeeds (BeginPng, reader)) {
        const auto width = png_get_image_width (reader.png, reader.info);
        const auto height = png_get_image_height (reader.png, reader.info);
        if (IsReasonable (width, height)) {
            image = NewImage (juce::Image::ARGB, width, height);
            const juce::Image::BitmapData pixels (image, juce::Image::BitmapData::readWrite);
            reader.pixels = &pixels;
            if (Succeeds (DecodePng, reader))
                Premultiply (pixels);
            else
                image = {};
        }
    }
    png_destroy_read_struct (&reader.png, &reader.info, nullptr);
    return image;
}

// ---- JPEG

struct JpegReader
{
    jpeg_decompress_struct info; // its client_data points to this struct
    jpeg_error_mgr errors;
    std::jmp_buf failed;
    bool cutShort;
    const juce::MemoryBlock* bytes;
    const juce::Image::BitmapData* pixels;
};

JpegReader& ReaderOf (j_common_ptr info) { return *static_cast<JpegReader*> (info->client_data); }

void Fail (j_common_ptr info) { std::longjmp (ReaderOf (info).failed, 1); }

void Note (j_common_ptr info, int level)
{
    if (level < 0 && info->err->msg_code == JWRN_JPEG_EOF)
        ReaderOf (info).cutShort = true;
}

void BeginJpeg (JpegReader& reader)
{
    jpeg_create_decompress (&reader.info);
    jpeg_mem_src (&reader.info, static_cast<const unsigned char*> (reader.bytes->getData()),
                  static_cast<unsigned long> (reader.bytes->getSize()));
    jpeg_read_header (&reader.info, TRUE);
}

/** CMYK without a profile. Programs that write Adobe's marker store inverted values. */
juce::Colour ColourOfInks (const JSAMPLE* inks, bool areInverted)
{
    const auto paper = [=] (int i) { return areInverted ? int{ inks[i] } : 255 - inks[i]; };
    const auto light = [=] (int i) { return static_cast<juce::uint8> ((paper (i) * paper (3) + 127) / 255); };
    return { light (0), light (1), light (2) };
}

void DecodeJpeg (JpegReader& reader)
{
    const bool hasInks = reader.info.jpeg_color_space == JCS_CMYK || reader.info.jpeg_color_space == JCS_YCCK;
    const auto isInverted = reader.info.saw_Adobe_marker != 0;
    const int channels = hasInks ? 4 : 3;
    reader.info.out_color_space = hasInks ? JCS_CMYK : JCS_RGB;
    jpeg_start_decompress (&reader.info);
    auto* row = (*reader.info.mem->alloc_sarray) (reinterpret_cast<j_common_ptr> (&reader.info), JPOOL_IMAGE,
                                                  reader.info.output_width * static_cast<unsigned> (channels), 1);
    while (reader.info.output_scanline < reader.info.output_height) {
        const auto y = static_cast<int> (reader.info.output_scanline);
        jpeg_read_scanlines (&reader.info, row, 1);
        const auto* from = *row;
        for (int x = 0; x < reader.pixels->width; ++x, from += channels)
            reader.pixels->setPixelColour (
                x, y, hasInks ? ColourOfInks (from, isInverted) : juce::Colour (from[0], from[1], from[2]));
    }
    jpeg_finish_decompress (&reader.info);
}

/** As above. */
bool Succeeds (void (*step) (JpegReader&), JpegReader& reader)
{
    if (setjmp (reader.failed) != 0) // NOLINT(cert-err52-cpp): required by the library
        return false;
    step (reader);
    return true;
}

juce::Image ReadJpeg (const juce::MemoryBlock& bytes)
{
    JpegReader reader{};
    reader.bytes = &bytes;
    reader.info.err = jpeg_std_error (&reader.errors);
    reader.info.client_data = &reader;
    reader.errors.error_exit = Fail;
    reader.errors.emit_message = Note;

    juce::Image image;
    if (Succeeds (BeginJpeg, reader) && IsReasonable (reader.info.image_width, reader.info.image_height)) {
        image = NewImage (juce::Image::RGB, reader.info.image_width, reader.info.image_height);
        const juce::Image::BitmapData pixels (image, juce::Image::BitmapData::writeOnly);
        reader.pixels = &pixels;
        if (! Succeeds (DecodeJpeg, reader) || reader.cutShort)
            image = {};
    }
    jpeg_destroy_decompress (&reader.info);
    return image;
}

bool StartsWith (const juce::MemoryBlock& bytes, std::initializer_list<int> signature)
{
    return bytes.getSize() > signature.size() &&
           std::equal (signature.begin(), signature.end(), bytes.begin(),
                       [] (int wanted, char byte) { return wanted == static_cast<unsigned char> (byte); });
}

}

juce::Image ReadImage (const juce::File& file)
{
    juce::MemoryBlock bytes;
    if (file.getSize() > largestFile || ! file.loadFileAsData (bytes))
        return {};
    if (StartsWith (bytes, { 0x89, 'P', 'N', 'G' }))
        return ReadPng (bytes);
    if (StartsWith (bytes, { 0xFF, 0xD8 }))
        return ReadJpeg (bytes);
    return {};
}

}
