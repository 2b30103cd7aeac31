#pragma once

#include <QByteArray>
#include <QPaintDevice>
#include <QSize>
#include <QString>

#include <memory>

namespace kelvaro {

class SvgEngine;

/// Takes what a painter draws and makes an SVG file of it: paths in one colour each, stroked where the width
/// of a line is the same everywhere and else filled. Text becomes outlines.
class SvgCanvas : public QPaintDevice {
public:
    /// The size is in units.
    SvgCanvas(QSize size, int unitsPerInch);
    ~SvgCanvas() override;
    SvgCanvas(const SvgCanvas &) = delete;
    SvgCanvas &operator=(const SvgCanvas &) = delete;

    /// The bytes of the file, when the painter has ended. Raises RuntimeError when something was drawn that
    /// the file would lack: images, gradients and patterns, clipped and composed drawings.
    QByteArray File(const QString &title, const QString &description) const;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize size_;
    int unitsPerInch_;
    std::unique_ptr<SvgEngine> engine_;
};

} // namespace kelvaro
