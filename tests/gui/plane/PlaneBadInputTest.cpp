#include "PlanePicture.h"
#include "PlaneRecorder.h"

#include <gmock/gmock.h>

using lumo::PlaneComponent;
using testing::IsEmpty;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/** A temporary file. */
struct Scratch
{
    explicit Scratch (const juce::MemoryBlock& bytes) { file.replaceWithData (bytes.getData(), bytes.getSize()); }
    ~Scratch() { file.deleteFile(); }
    juce::File file{ juce::File::createTempFile ("image") };
};

template <typename Format>
juce::MemoryBlock Encoded (int width, int height)
{
    juce::Image image (juce::Image::RGB, width, height, true, juce::SoftwareImageType());
    for (int x = 0; x < width; ++x)
        image.setPixelAt (x, x % height, juce::Colours::red);
    juce::MemoryOutputStream out;
    Format().writeImageToStream (image, out);
    return out.getMemoryBlock();
}

void PatchBigEndian (juce::MemoryBlock& bytes, int offset, juce::uint32 value, int width)
{
    for (int i = 0; i < width; ++i)
        bytes[offset + i] = static_cast<char> (value >> (8 * (width - 1 - i)));
}

juce::MemoryBlock HugePng()
{
    auto bytes = Encoded<juce::PNGImageFormat> (40, 40);
    PatchBigEndian (bytes, 16, 20000, 4);
    PatchBigEndian (bytes, 20, 20000, 4);
    return bytes;
}

juce::MemoryBlock HugeJpeg()
{
    auto bytes = Encoded<juce::JPEGImageFormat> (40, 40);
    for (int i = 0; i + 9 < static_cast<int> (bytes.getSize()); ++i)
        if (bytes[i] == '\xFF' && bytes[i + 1] == '\xC0') {
            PatchBigEndian (bytes, i + 5, 20000, 2);
            PatchBigEndian (bytes, i + 7, 20000, 2);
        }
    return bytes;
}

juce::MemoryBlock Bytes (const std::string& text) { return { text.data(), text.size() }; }

}

TEST (PlaneBadImages, GiveNoImageAndNoHarm)
{
    auto zeroSized = Encoded<juce::PNGImageFormat> (40, 40);
    PatchBigEndian (zeroSized, 16, 0, 4);
    const std::pair<const char*, juce::MemoryBlock> rows[] = {
        { "nothing", {} },
        { "a text", Bytes ("this is no image at all, only some words") },
        { "a zero width", zeroSized },
        { "a huge PNG", HugePng() },
        { "a huge JPEG", HugeJpeg() },
        { "a bare JPEG marker", Bytes ("\xFF\xD8\xFF") },
        { "a JPEG of endless markers", Bytes ("\xFF\xD8" + std::string (5000, '\xFF')) },
        { "a bare signature", Bytes ("\x89PNG\r\n\x1A\n") },
    };
    for (const auto& [name, bytes] : rows) {
        PlaneComponent plane (2, 2, 200);
        const Scratch scratch (bytes);
        plane.SetBackgroundImageFile (scratch.file);
        plane.SetBackgroundImageVisible (true);
        EXPECT_TRUE (plane.GetSurface().backgroundImage.image.isNull()) << name;
        EXPECT_EQ (plane.GetSurface().backgroundImage.imageWidth, 0) << name;
        static_cast<void> (Picture (plane));
    }
    PlaneComponent plane (0, 0, 200);
    plane.SetBackgroundImageFile (juce::File::getCurrentWorkingDirectory().getChildFile ("no such file.png"));
    EXPECT_TRUE (plane.GetSurface().backgroundImage.image.isNull());
}

/** Truncated anywhere, or with any byte changed, a file either loads or does not. */
TEST (PlaneBadImages, DamagedFilesDoNoHarm)
{
    for (const auto& whole : { Encoded<juce::PNGImageFormat> (24, 24), Encoded<juce::JPEGImageFormat> (24, 24) })
        for (int i = 1; i < static_cast<int> (whole.getSize()); i += 7) {
            lumo::Plane::BackgroundImage image;
            image.Load (Scratch ({ whole.getData(), static_cast<std::size_t> (i) }).file);
            auto changed = whole;
            changed[i] = static_cast<char> (changed[i] ^ 0x5A);
            image.Load (Scratch (changed).file);
            EXPECT_LE (image.imageWidth, 65536);
        }
}

TEST (PlaneImages, AreShownInTheTopViewAtAnyZoom)
{
    PlaneComponent plane (0, 0, 200);
    const Scratch scratch (Encoded<juce::PNGImageFormat> (200, 200));
    plane.SetBackgroundImageFile (scratch.file);
    EXPECT_EQ (plane.GetSurface().backgroundImage.imageWidth, 200);
    plane.SetBackgroundImageScale (1);
    EXPECT_EQ (plane.GetSurface().backgroundImage.scaledWidth, 2);
    plane.SetBackgroundImageVisible (true);
    EXPECT_LT (Picture (plane).getPixelAt (30, 150).getBrightness(), 0.5f) << "the picture is black there";
    for (const float zoom : { 100.0f, 0.1f })
        for (const float angle : { 0.0f, 0.8f, 1e20f }) {
            plane.SetZoom (zoom, true);
            plane.SetBackgroundImageAngle (angle);
            plane.SetBackgroundImageXOffset (angle);
            plane.SetBackgroundImageScale (5000);
            static_cast<void> (Picture (plane));
        }
    plane.SetZoom (1, true);
    plane.ClearBackgroundImage();
    EXPECT_GT (Picture (plane).getPixelAt (30, 150).getBrightness(), 0.5f);
    EXPECT_EQ (plane.GetSurface().backgroundImage.file, scratch.file.getFullPathName());
}

TEST (PlaneBadNumbers, NeverReachAnObject)
{
    PlaneComponent plane (2, 2, 200);
    plane.SetNumAnchors (1);
    plane.SetNumAreas (1);
    plane.SetAreasMonitoring (true);
    PlaneRecorder heard (plane);
    for (const float bad : { notANumber, infinity, -infinity }) {
        for (const qel::Point3& p : { qel::Point3{ bad, 0, 0 }, { 0, bad, 0 }, { 0, 0, bad } }) {
            plane.SetSourcePosition (0, p, true);
            plane.SetSpeakerPosition (0, p, true);
            plane.SetListenerPosition (p, true);
            plane.SetAnchorPosition (0, p);
            plane.SetAreaPoints (0, { p });
            plane.SetShoebox (p, {});
            plane.SetSourceLookAt (0, p, true);
        }
        plane.SetSourceAzimuth (0, bad, true);
        plane.SetSourceElevation (0, bad, true);
        plane.SetSourceDistance (0, bad, true);
        plane.SetSourceYaw (0, bad, true);
        plane.SetSourceAperture (0, bad, true);
        plane.SetSourceRadius (0, bad, true);
        plane.SetSourceProportion (0, bad);
        plane.RotateAllSources (bad, 0, 0, true);
        plane.SetListenerYaw (bad, true);
        plane.SetListenerOrientation (0, bad, 0, true);
        plane.SetXOffset (bad);
        plane.SetMarkerProportion (bad);
        plane.SetBackgroundImageScale (bad);
        plane.SetBackgroundImageAngle (bad);
        qel::Point3Array between;
        plane.GetSnapshots().interpolate (between, "a", "b", bad);
        plane.SetSourcesPositions (between, true);
    }
    plane.SetSourceColour (0, notANumber, 0, 0, 1, true);
    plane.SetBackgroundColour (0, notANumber, 0, 1);
    plane.SetSourceLevel (0, notANumber);
    plane.SetGridSpacing (notANumber);
    EXPECT_THAT (heard.Take(), IsEmpty());
    EXPECT_EQ (plane.GetListenerPosition(), qel::Point3());
    EXPECT_FLOAT_EQ (plane.GetScene().sources[0].level, -60);
    static_cast<void> (Picture (plane));
}

TEST (PlaneBadNumbers, ColoursOutOfRangeAreClamped)
{
    PlaneComponent plane (1, 0, 200);
    plane.SetSourceColour (0, 7, -3, 0, 1e30f, false);
    EXPECT_EQ (plane.GetScene().sources[0].Colour(), juce::Colours::red);
}

TEST (PlaneBadIndices, AreIgnored)
{
    for (const std::size_t count : { std::size_t{ 0 }, std::size_t{ 2 } }) {
        PlaneComponent plane (count, count, 200);
        PlaneRecorder heard (plane);
        for (const std::size_t index : { count, count + 1, static_cast<std::size_t> (-1) }) {
            plane.SetSourcePosition (index, { 1, 1, 1 }, true);
            plane.SetSourceAzimuth (index, 3, true);
            plane.SetSourceYaw (index, 3, true);
            plane.SetSourceYawMode (index, "follow");
            plane.SetSourceLookAt (index, { 1, 1, 1 }, true);
            plane.SetSourceAperture (index, 3, true);
            plane.SetSourceColour (index, 1, 1, 1, 1, true);
            plane.SetSourceLabel (index, "x", true);
            plane.SetSourceVisible (index, false, true);
            plane.SetSourceSelected (index, true, true);
            plane.RotateSource (index, 1, 2, 3, true);
            plane.SetSpeakerPosition (index, { 1, 1, 1 }, true);
            plane.SetSpeakerName (index, "x", true);
            plane.SetAnchorPosition (index, { 1, 1, 1 });
            plane.SetAnchorName (index, "x");
            plane.SetAreaPoints (index, { { 1, 1, 1 } });
            plane.ClearArea (index);
            EXPECT_FALSE (plane.IsSourceSelected (index));
            EXPECT_EQ (plane.GetSourcePosition (index), qel::Point3());
        }
        EXPECT_THAT (heard.Take(), IsEmpty());
    }
}

TEST (PlaneWithoutObjects, WorksOnEveryPath)
{
    PlaneComponent plane (0, 0, 200);
    plane.SetHullVisible (true);
    plane.SetTriangulationVisible (true);
    plane.SetSpeakersRadiusVisible (true);
    plane.SetSpeakersProjectionVisible (true);
    plane.SetCircularConstraint (true);
    plane.RequestAutoZoom (true);
    for (const int key : { int{ 'a' }, int{ 's' }, int{ 'v' }, int{ 'g' }, int{ juce::KeyPress::tabKey } })
        plane.keyPressed (juce::KeyPress (key, 0, 0));
    plane.keyPressed (juce::KeyPress ('a', juce::ModifierKeys::ctrlModifier, 0));
    plane.SetSourcesPositions ({}, true);
    plane.SetSelection ({ true, false }, true);
    static_cast<void> (Picture (plane));
    plane.setSize (0, 0);
    plane.setSize (1, 7);
    static_cast<void> (Picture (plane));
    EXPECT_EQ (plane.GetNumSources(), 0u);
}

TEST (PlaneFarAway, ObjectsAtAnyDistanceArePaintedWithoutHarm)
{
    PlaneComponent plane (4, 6, 200);
    plane.SetNumAreas (1);
    plane.SetAreasVisible (true);
    plane.SetAreaPoints (0, { { -1e30f, 0, 0 }, { 1e30f, 1e30f, 0 }, { 0, -1e38f, 0 } });
    plane.SetHullVisible (true);
    plane.SetTriangulationVisible (true);
    plane.SetSpeakersProjectionVisible (true);
    plane.SetSpeakersRadiusVisible (true);
    plane.SetRadiusVisible (true);
    plane.SetSourceSelected (0, true, false);
    plane.SetSourceRadius (0, 1e30f, false);
    plane.SetNumAnchors (1);
    plane.SetAnchorsVisible (true);
    plane.SetShoeboxVisible (true);
    plane.SetShoebox ({ -1e30f, 1e30f, 0 }, { 1e30f, -1e30f, 0 });
    for (const float reach : { 1e4f, 1e20f, 3e38f }) {
        plane.SetSpeakerPosition (1, { reach, -reach, reach }, false);
        plane.SetSourcePosition (1, { -reach, reach, reach }, false);
        plane.SetAnchorPosition (0, { reach, 0, 0 });
        plane.SetListenerPosition ({ 0, reach, 0 }, false);
        for (const float zoom : { 0.11f, 100.0f }) {
            plane.SetZoom (zoom, true);
            static_cast<void> (Picture (plane));
        }
    }
    EXPECT_TRUE (qel::isFinite (plane.GetSourcePosition (1)));
}
