#pragma once

#include <optional>
#include <vector>

#include "resources/drawing/Drawing.h"

// A drawing painted into dots without smoothing: a plain second reading of what a drawing means, for tests alone.
class Raster {
public:
    // `scale` dots a pixel; a dot has the colour of the drawing about its middle, or none where nothing is painted.
    explicit Raster(const resources::drawing::Drawing& drawing, double scale = 1);

    int width() const { return width_; }
    int height() const { return height_; }
    std::optional<base::Colour> at(int x, int y) const { return dots_[index(x, y)]; }
    friend bool operator==(const Raster&, const Raster&) = default;

private:
    std::size_t index(int x, int y) const { return static_cast<std::size_t>(y * width_ + x); }
    void paint(const resources::drawing::Shape& shape, double scale);
    void fill(const std::vector<resources::drawing::Polyline>& lines, resources::drawing::FillRule rule,
              base::Colour colour, double scale);
    void stroke(resources::drawing::Point from, resources::drawing::Point to, double reach, base::Colour colour,
                double scale);

    int width_;
    int height_;
    std::vector<std::optional<base::Colour>> dots_;
};

// Of two rasters of the same size.
int differing_dots(const Raster& one, const Raster& other);

// A connected group of dots of one colour; its edges are dot numbers, both ends included.
struct Patch {
    int left;
    int top;
    int right;
    int bottom;
};

std::vector<Patch> patches(const Raster& raster, base::Colour colour);
