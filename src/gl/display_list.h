#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <GL/gl.h>

namespace tessaplot::gl {

class DisplayList;
using DisplayListPtr = std::shared_ptr<const DisplayList>;

/// The recorded operations: one for each OpenGL or GLU call that a scene makes.
enum class Op : std::uint8_t {
    Begin,
    End,
    Vertex3d,
    Normal3d,
    Color3f,
    Color3d,
    Color4f,
    Color4d,
    TexCoord2f,
    TexCoord2d,
    Enable,
    Disable,
    LineWidth,
    ShadeModel,
    PolygonMode,
    PolygonOffset,
    Hint,
    BlendFunc,
    DepthMask,
    ColorMaterial,
    Materialfv,
    Lightfv,
    LightModelfv,
    MatrixMode,
    LoadIdentity,
    PushMatrix,
    PopMatrix,
    MultMatrixf,
    Translatef,
    Rotatef,
    Scalef,
    Ortho,
    Frustum,
    LookAt,
    RenderMode,
    Viewport,
    Clear,
    Accum,
    Flush,
    Finish,
    PushAttrib,
    PopAttrib,
    RasterPos3f,
    ListBase,
    CallListsText,
    TexParameteri,
    TexEnvi,
    TexImage2D,
    NewQuadric,
    DeleteQuadric,
    Sphere,
    Cylinder,
    CallList,
};

/// One operation as it is read back: its numbers in call order (enumerators as their values), and an index into the
/// list's texts, images or called lists where the operation has one.
struct Operation {
    Op op;
    std::span<const double> numbers;
    std::size_t object = 0;
};

/// An image as glTexImage2D takes it: rows without padding, from the bottom up, three bytes (red, green, blue) or four
/// (with alpha) a pixel.
struct TextureImage {
    int width = 0;
    int height = 0;
    int channels = 3;
    std::vector<std::uint8_t> pixels;
};

/// A recorded sequence of OpenGL and GLU calls. Recording needs no context; `Replay` draws the list, `text` tells it.
/// The methods bear the names of the calls that they stand for. A list that is shared is never changed again.
class DisplayList {
 public:
    void glBegin(GLenum mode) { record(Op::Begin, mode); }
    void glEnd() { record(Op::End); }
    void glVertex3d(double x, double y, double z) { record(Op::Vertex3d, x, y, z); }
    void glNormal3d(double x, double y, double z) { record(Op::Normal3d, x, y, z); }
    void glColor3f(float red, float green, float blue) { record(Op::Color3f, red, green, blue); }
    void glColor3d(double red, double green, double blue) { record(Op::Color3d, red, green, blue); }
    void glColor4f(float red, float green, float blue, float alpha) { record(Op::Color4f, red, green, blue, alpha); }
    void glColor4d(double red, double green, double blue, double alpha) {
        record(Op::Color4d, red, green, blue, alpha);
    }
    void glTexCoord2f(float s, float t) { record(Op::TexCoord2f, s, t); }
    void glTexCoord2d(double s, double t) { record(Op::TexCoord2d, s, t); }

    void glEnable(GLenum capability) { record(Op::Enable, capability); }
    void glDisable(GLenum capability) { record(Op::Disable, capability); }
    void glLineWidth(float width) { record(Op::LineWidth, width); }
    void glShadeModel(GLenum mode) { record(Op::ShadeModel, mode); }
    void glPolygonMode(GLenum face, GLenum mode) { record(Op::PolygonMode, face, mode); }
    void glPolygonOffset(float factor, float units) { record(Op::PolygonOffset, factor, units); }
    void glHint(GLenum target, GLenum mode) { record(Op::Hint, target, mode); }
    void glBlendFunc(GLenum source, GLenum destination) { record(Op::BlendFunc, source, destination); }
    void glDepthMask(bool writes) { record(Op::DepthMask, writes ? 1 : 0); }
    void glColorMaterial(GLenum face, GLenum mode) { record(Op::ColorMaterial, face, mode); }
    /// `values` holds four entries, one for GL_SHININESS.
    void glMaterialfv(GLenum face, GLenum name, std::span<const float> values) {
        recordVector(Op::Materialfv, values, face, name);
    }
    /// `values` holds four entries.
    void glLightfv(GLenum light, GLenum name, std::span<const float> values) {
        recordVector(Op::Lightfv, values, light, name);
    }
    /// `values` holds four entries, one for GL_LIGHT_MODEL_TWO_SIDE.
    void glLightModelfv(GLenum name, std::span<const float> values) { recordVector(Op::LightModelfv, values, name); }

    void glMatrixMode(GLenum mode) { record(Op::MatrixMode, mode); }
    void glLoadIdentity() { record(Op::LoadIdentity); }
    void glPushMatrix() { record(Op::PushMatrix); }
    void glPopMatrix() { record(Op::PopMatrix); }
    void glMultMatrixf(const std::array<float, 16>& matrix) { recordVector(Op::MultMatrixf, matrix); }
    void glTranslatef(float x, float y, float z) { record(Op::Translatef, x, y, z); }
    void glRotatef(float degrees, float x, float y, float z) { record(Op::Rotatef, degrees, x, y, z); }
    void glScalef(float x, float y, float z) { record(Op::Scalef, x, y, z); }
    void glOrtho(double left, double right, double bottom, double top, double zNear, double zFar) {
        record(Op::Ortho, left, right, bottom, top, zNear, zFar);
    }
    void glFrustum(double left, double right, double bottom, double top, double zNear, double zFar) {
        record(Op::Frustum, left, right, bottom, top, zNear, zFar);
    }
    void gluLookAt(double eyeX, double eyeY, double eyeZ, double refX, double refY, double refZ, double upX, double upY,
                   double upZ) {
        record(Op::LookAt, eyeX, eyeY, eyeZ, refX, refY, refZ, upX, upY, upZ);
    }

    void glRenderMode(GLenum mode) { record(Op::RenderMode, mode); }
    void glViewport(int x, int y, int width, int height) { record(Op::Viewport, x, y, width, height); }
    void glClear(GLbitfield buffers) { record(Op::Clear, buffers); }
    void glAccum(GLenum operation, float value) { record(Op::Accum, operation, value); }
    void glFlush() { record(Op::Flush); }
    void glFinish() { record(Op::Finish); }
    void glPushAttrib(GLbitfield groups) { record(Op::PushAttrib, groups); }
    void glPopAttrib() { record(Op::PopAttrib); }

    void glRasterPos3f(float x, float y, float z) { record(Op::RasterPos3f, x, y, z); }
    void glListBase(GLuint base) { record(Op::ListBase, base); }
    /// Draws `text` a glyph a byte with the lists from the base set by glListBase; `type` is GL_BYTE or
    /// GL_UNSIGNED_BYTE.
    void glCallLists(GLenum type, std::string_view text);

    void glTexParameteri(GLenum target, GLenum name, GLint value) { record(Op::TexParameteri, target, name, value); }
    void glTexEnvi(GLenum target, GLenum name, GLint value) { record(Op::TexEnvi, target, name, value); }
    /// Level 0 of the two-dimensional texture; the image is shared, not copied.
    void glTexImage2D(std::shared_ptr<const TextureImage> image);

    void gluNewQuadric() { record(Op::NewQuadric); }
    void gluDeleteQuadric() { record(Op::DeleteQuadric); }
    void gluSphere(double radius, int slices, int stacks) { record(Op::Sphere, radius, slices, stacks); }
    void gluCylinder(double base, double top, double height, int slices, int stacks) {
        record(Op::Cylinder, base, top, height, slices, stacks);
    }

    /// Calls another list; `text` shows its operations in place.
    void glCallList(DisplayListPtr list);

    /// Records an operation of another list once more.
    void append(const DisplayList& from, const Operation& operation);

    bool empty() const { return ops_.empty(); }
    std::size_t size() const { return ops_.size(); }
    void reserve(std::size_t operations, std::size_t numbers);
    /// Bytes held by the recording itself, called lists and images not counted.
    std::size_t bytes() const;

    /// Calls `visit(const Operation&)` for each operation in order; called lists are given as Op::CallList.
    template <class Visitor>
    void forEach(Visitor&& visit) const;

    const std::string& text(std::size_t object) const { return texts_[object]; }
    const DisplayListPtr& called(std::size_t object) const { return lists_[object]; }
    const std::shared_ptr<const TextureImage>& image(std::size_t object) const { return images_[object]; }

    /// True if both lists hold the same operations and call the very same lists and images.
    friend bool operator==(const DisplayList& a, const DisplayList& b) = default;

 private:
    template <class... Numbers>
    void record(Op op, Numbers... numbers) {
        ops_.push_back(op);
        (numbers_.push_back(static_cast<double>(numbers)), ...);
    }
    template <class... Enums>
    void recordVector(Op op, std::span<const float> values, Enums... enums) {
        record(op, enums...);
        numbers_.insert(numbers_.end(), values.begin(), values.end());
        lengths_.push_back(static_cast<std::uint8_t>(sizeof...(enums) + values.size()));
    }

    std::vector<Op> ops_;
    std::vector<double> numbers_;
    std::vector<std::uint8_t> lengths_;  ///< Count of numbers of each operation whose count its kind does not tell.
    std::vector<std::string> texts_;
    std::vector<DisplayListPtr> lists_;
    std::vector<std::shared_ptr<const TextureImage>> images_;
};

/// How many numbers an operation holds, or -1 if each one tells for itself.
int numberCount(Op op);

/// The operations as text, one a line: the call's name and its arguments, constants by name, numbers in their shortest
/// form that reads back the same. Called lists are expanded in place.
std::string toText(const DisplayList& list);

template <class Visitor>
void DisplayList::forEach(Visitor&& visit) const {
    std::size_t number = 0;
    std::size_t length = 0;
    std::size_t textIndex = 0;
    std::size_t listIndex = 0;
    std::size_t imageIndex = 0;
    for (const Op op : ops_) {
        int count = numberCount(op);
        if (count < 0) count = lengths_[length++];
        Operation operation{op, {numbers_.data() + number, static_cast<std::size_t>(count)}, 0};
        if (op == Op::CallListsText) operation.object = textIndex++;
        if (op == Op::CallList) operation.object = listIndex++;
        if (op == Op::TexImage2D) operation.object = imageIndex++;
        visit(static_cast<const Operation&>(operation));
        number += static_cast<std::size_t>(count);
    }
}

}  // namespace tessaplot::gl
