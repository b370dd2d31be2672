#include "gui/plane/surface/ImageReader.h"

#include <csetjmp>
#include <cstdio>

// The order matters: jpeglib.h needs the types of stdio.
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

juce::Image DecodePng (png_image& header)
{
    if (! IsReasonable (header.width, header.height))
        return {};
    header.format = PNG_FORMAT_RGBA;
    juce::HeapBlock<png_byte> rows (static_cast<std::size_t> (header.width) * header.height * 4);
    if (png_image_finish_read (&header, nullptr, rows, 0, nullptr) == 0)
        return {};
    auto image = NewImage (juce::Image::ARGB, header.width, header.height);
    const juce::Image::BitmapData pixels (image, juce::Image::BitmapData::writeOnly);
    const auto* from = rows.get();
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x, from += 4)
            pixels.setPixelColour (x, y, juce::Colour (from[0], from[1], from[2], from[3]));
    return image;
}

juce::Image ReadPng (const juce::MemoryBlock& bytes)
{
    png_image header{};
    header.version = PNG_IMAGE_VERSION;
    juce::Image image;
    if (png_image_begin_read_from_memory (&header, bytes.getData(), bytes.getSize()) != 0)
        image = DecodePng (header);
    png_image_free (&header);
    return image;
}

// ---- JPEG

struct JpegReader
{
    jpeg_decompress_struct info; // first, so that the library's pointer to it leads here
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

void DecodeJpeg (JpegReader& reader)
{
    reader.info.out_color_space = JCS_RGB;
    jpeg_start_decompress (&reader.info);
    auto* row = (*reader.info.mem->alloc_sarray) (reinterpret_cast<j_common_ptr> (&reader.info), JPOOL_IMAGE,
                                                  reader.info.output_width * 3, 1);
    while (reader.info.output_scanline < reader.info.output_height) {
        const auto y = static_cast<int> (reader.info.output_scanline);
        jpeg_read_scanlines (&reader.info, row, 1);
        const auto* from = *row;
        for (int x = 0; x < reader.pixels->width; ++x, from += 3)
            reader.pixels->setPixelColour (x, y, juce::Colour (from[0], from[1], from[2]));
    }
    jpeg_finish_decompress (&reader.info);
}

/** The library leaves a step with an error by a long jump, so that no object may be born in one. */
bool Succeeds (void (*step) (JpegReader&), JpegReader& reader)
{
    if (setjmp (reader.failed) != 0) // NOLINT(cert-err52-cpp): the library's way
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
