#pragma once

#include <algorithm>
#include <cstdlib>

#include "gl/replay.h"
#include "plain_drawing.h"

namespace tessaplot::gl::test {

/// How far two pictures are apart.
struct Difference {
    int largest = 0;        ///< Over all channels, of 255.
    double share = 0;       ///< Of the pixels, those whose difference is above 1.
    double drawnShare = 0;  ///< Of the pixels, those of the first picture that are not white.
};

inline Difference compare(const Pixels& a, const Pixels& b) {
    Difference difference;
    const double pixel = 3.0 / static_cast<double>(a.size());
    for (std::size_t i = 0; i + 2 < a.size(); i += 3) {
        int largest = a.size() == b.size() ? 0 : 255;
        for (std::size_t k = i; k < i + 3 && a.size() == b.size(); ++k)
            largest = std::max(largest, std::abs(a[k] - b[k]));
        difference.largest = std::max(difference.largest, largest);
        if (largest > 1) difference.share += pixel;
        if (a[i] != 255 || a[i + 1] != 255 || a[i + 2] != 255) difference.drawnShare += pixel;
    }
    return difference;
}

/// Draws the same frames with a replay and in the plain way.
class BothWays {
 public:
    static constexpr int width = 200;
    static constexpr int height = 160;

    Difference draw(const DisplayList& frame) {
        plain_.draw(frame);
        context_.makeCurrent();
        replay_.draw(frame, width, height);
        const Pixels pixels = replay_.readPixels();
        return compare(plain_.readPixels(), pixels);
    }
    Replay& replay() {
        context_.makeCurrent();
        return replay_;
    }

 private:
    PlainDrawing plain_{width, height};
    OffscreenContext context_;
    Replay replay_;
};

/// A camera that sees about ten units around the origin, from above, with a light; `shift` moves the picture by parts
/// of a pixel.
inline void placeCamera(DisplayList& list, double shift = 0) {
    list.glMatrixMode(GL_PROJECTION);
    list.glLoadIdentity();
    const double offset = shift * 16 / BothWays::width;
    list.glOrtho(-8 + offset, 8 + offset, -6.4 + offset, 6.4 + offset, 1, 40);
    list.glMatrixMode(GL_MODELVIEW);
    list.glLoadIdentity();
    list.gluLookAt(0, 0, 20, 0, 0, 0, 0, 1, 0);
    list.glRotatef(35, 1, 0, 0);
    list.glRotatef(-40, 0, 1, 0);
}

inline void setLight(DisplayList& list) {
    list.glLightfv(GL_LIGHT0, GL_POSITION, std::array<float, 4>{10, 20, 30, 1});
    for (const GLenum light : {GL_DIFFUSE, GL_SPECULAR})
        list.glLightfv(GL_LIGHT0, light, std::array<float, 4>{1, 1, 1, 1});
    list.glLightModelfv(GL_LIGHT_MODEL_AMBIENT, std::array<float, 4>{0.2F, 0.2F, 0.2F, 1});
    list.glLightModelfv(GL_LIGHT_MODEL_TWO_SIDE, std::array<float, 1>{1});
    // Without it highlights have a hard edge, which rounding would move.
    list.glMaterialfv(GL_FRONT_AND_BACK, GL_SHININESS, std::array<float, 1>{10});
    for (const GLenum capability : {GL_LIGHTING, GL_LIGHT0, GL_COLOR_MATERIAL})
        list.glEnable(capability);
    list.glColorMaterial(GL_FRONT_AND_BACK, GL_DIFFUSE);
}

/// A frame that calls `body` once a sample.
inline DisplayList frameOf(const DisplayListPtr& body, int samples = 1) {
    DisplayList frame;
    placeCamera(frame);
    setLight(frame);
    frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_ACCUM_BUFFER_BIT);
    for (int i = 0; i < samples; ++i) {
        frame.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        placeCamera(frame, (i + 0.5) / samples - 0.5);
        frame.glPushMatrix();
        frame.glCallList(body);
        frame.glPopMatrix();
        if (samples > 1) frame.glAccum(GL_ACCUM, 1.0F / static_cast<float>(samples));
    }
    if (samples > 1) frame.glAccum(GL_RETURN, 1);
    return frame;
}

}  // namespace tessaplot::gl::test
