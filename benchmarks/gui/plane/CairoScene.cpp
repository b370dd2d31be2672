#include "CairoScene.h"

#include <cairo.h>

struct CairoScene::Surfaces
{
    cairo_surface_t *frame, *staticLayer;
    cairo_t* context;
};

CairoScene::CairoScene (int side) : surfaces (std::make_unique<Surfaces>())
{
    surfaces->frame = cairo_image_surface_create (CAIRO_FORMAT_RGB24, side, side);
    surfaces->staticLayer = cairo_image_surface_create (CAIRO_FORMAT_RGB24, side, side);
    surfaces->context = cairo_create (surfaces->frame);
}

CairoScene::~CairoScene()
{
    cairo_destroy (surfaces->context);
    cairo_surface_destroy (surfaces->staticLayer);
    cairo_surface_destroy (surfaces->frame);
}

namespace
{

void DrawFan (cairo_t* c, double x, double y, double radius, double rotation, double aperture)
{
    const double up = rotation - juce::MathConstants<double>::halfPi;
    cairo_move_to (c, x, y);
    cairo_arc (c, x, y, radius, up - aperture, up + aperture);
    cairo_close_path (c);
    cairo_set_source_rgba (c, 1, 1, 1, 0.62);
    cairo_fill_preserve (c);
    cairo_set_line_width (c, 2);
    cairo_stroke (c);
}

void DrawBall (cairo_t* c, double x, double y, double size)
{
    const double unit = size / 70;
    auto* shade = cairo_pattern_create_radial (x - 7 * unit, y - 9 * unit, 0, x - 7 * unit, y - 9 * unit, 44 * unit);
    cairo_pattern_add_color_stop_rgb (shade, 0, 0.8, 1, 0.65);
    cairo_pattern_add_color_stop_rgb (shade, 0.35, 0.49, 1, 0);
    cairo_pattern_add_color_stop_rgb (shade, 1, 0.29, 0.59, 0);
    cairo_arc (c, x, y, 32 * unit, 0, juce::MathConstants<double>::twoPi);
    cairo_set_source (c, shade);
    cairo_fill_preserve (c);
    cairo_set_source_rgba (c, 0, 0, 0, 0.7);
    cairo_set_line_width (c, 2 * unit);
    cairo_stroke (c);
    cairo_pattern_destroy (shade);
}

void DrawLabel (cairo_t* c, double x, double y, const char* text, double height)
{
    cairo_select_font_face (c, "sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size (c, height);
    cairo_text_extents_t extents;
    cairo_text_extents (c, text, &extents);
    cairo_move_to (c, x - extents.width / 2, y + extents.height / 2);
    cairo_set_source_rgb (c, 0, 0, 0);
    cairo_show_text (c, text);
}

}

void CairoScene::DrawFrame (const lumo::PlaneComponent& plane)
{
    auto* c = surfaces->context;
    cairo_set_source_surface (c, surfaces->staticLayer, 0, 0);
    cairo_paint (c);
    const auto& view = plane.GetSurface().viewTransform;
    const auto& sources = plane.GetScene().sources;
    for (const auto& source : sources)
        DrawFan (c, static_cast<double> (source.screenPosition.x), static_cast<double> (source.screenPosition.y),
                 view.PixelSize (source.ApertureProportion()), static_cast<double> (source.RelativeYaw()),
                 static_cast<double> (source.aperture));
    for (const auto& source : sources) {
        const double x = static_cast<double> (source.screenPosition.x),
                     y = static_cast<double> (source.screenPosition.y);
        const double size = view.PixelSize (source.Proportion());
        DrawBall (c, x, y, size);
        DrawLabel (c, x, y, source.label.Text().toRawUTF8(), juce::jlimit (12.0, 20.0, size / 2));
    }
    cairo_surface_flush (surfaces->frame);
}
