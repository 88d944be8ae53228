#pragma once

#include "platform_widgets_export.h"

#include <QFrame>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QPainter;
class QPainterPath;
class QPalette;
QT_END_NAMESPACE

namespace ui {

/**
 * A container that draws a rounded frame around its children.
 *
 * \image html CRoundedFrame.png "A frame in its looks"
 *
 * \snippet CRoundedFrame.cpp CRoundedFrame
 *
 * The outline is plain or shaded, the inside may be filled, and a widget mask may cut the corners
 * off, children included, so that they are truly transparent. The frame sets its own contents
 * margins, which keep a layout clear of the outline and of the rounded corners.
 *
 * Its nearest neighbour is QFrame, of which it borrows no more than the Shadow enumeration:
 * QFrame's corners are square, it fills nothing and clips nothing.
 *
 * \anchor looks_CRoundedFrame
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | foregroundRole(), QPalette::WindowText by default | the outline of a plain frame |
 * | QPalette::Light, QPalette::Dark | the outline of a raised or a sunken frame |
 * | backgroundRole(), QPalette::Window by default | the inside, if it is filled |
 * | `ui--CRoundedFrame` | plain outline by \c color, filled inside by \c background-color |
 * | `qproperty-...` | the properties below; enumerators by their names |
 *
 * \anchor properties_CRoundedFrame
 * \par Properties
 * | Property | Getter | Setter | Default | In a style sheet |
 * |---|---|---|---|---|
 * | \c radius | radius() | setRadius() | 18 | `qproperty-radius` |
 * | \c lineWidth | lineWidth() | setLineWidth() | 2 | `qproperty-lineWidth` |
 * | \c frameShadow | frameShadow() | setFrameShadow() | Plain | `qproperty-frameShadow` |
 * | \c frameShape | frameShape() | setFrameShape() | Box | `qproperty-frameShape` |
 *
 * No value is refused. Radii and widths that are too large for the widget leave no room for its
 * contents; then, and with margins of 0 or less, no outline is drawn and no mask is made.
 */
class PLATFORM_WIDGETS_EXPORT CRoundedFrame : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int radius READ radius WRITE setRadius)
    Q_PROPERTY(int lineWidth READ lineWidth WRITE setLineWidth)
    Q_PROPERTY(QFrame::Shadow frameShadow READ frameShadow WRITE setFrameShadow)
    Q_PROPERTY(Shape frameShape READ frameShape WRITE setFrameShape)

public:
    /// What is drawn around the contents. The type is open to any int; all but NoFrame count as
    /// Box.
    enum Shape : int {
        NoFrame = 0, ///< No outline, and no room for one.
        Box = 1, ///< A rounded outline.
    };
    Q_ENUM(Shape)

    /// A plain frame with an outline, neither filled nor masked, owned by \a parent.
    explicit CRoundedFrame(QWidget* parent = nullptr);
    ~CRoundedFrame() override;

    /**
     * Radius of the corners in pixels, 18 by default, the same in both directions.
     * 0 and less give square corners; more than half a side counts as half of it when painted.
     */
    int radius() const;
    /// Sets the radius, and with it the contents margins.
    void setRadius(int radius);

    /**
     * Width of the outline in pixels, 2 by default; with 0 it is drawn one pixel wide, with less
     * not. The outline lies half a line width inside the widget's edge.
     */
    int lineWidth() const;
    /// Sets the line width, and with it the contents margins.
    void setLineWidth(int lineWidth);

    /**
     * Look of the outline, QFrame::Plain by default.
     * Raised shades from light at the top left to dark at the bottom right, Sunken the other way
     * round; any other value is plain.
     */
    QFrame::Shadow frameShadow() const;
    /// Sets the look of the outline.
    void setFrameShadow(QFrame::Shadow shadow);

    /// Whether there is an outline, Box by default.
    Shape frameShape() const;
    /**
     * Shows or hides the outline. The contents margins stay, so that the contents do not jump: they
     * follow at the next setRadius(), setLineWidth() or fullUpdate().
     */
    void setFrameShape(ui::CRoundedFrame::Shape shape);

    /// Fills the inside of the outline with the background role, or not (the default).
    void enableFillContents(bool enable);

    /**
     * Keeps a widget mask of the rounded shape of the whole widget, or none (the default).
     * Outside of it the widget is neither seen nor reached by the mouse. A visible widget has its
     * mask when the call returns, a hidden one from its first paint on. A child that is opaque and
     * covers the frame altogether keeps it from being painted, and so from being masked.
     */
    void enableWidgetMask(bool enable);

    /**
     * Computes the contents margins from radius, line width and shape, and sets them.
     * Each side gets the part of a corner that lies outside of its arc's middle, and one and a half
     * line widths if there is an outline. A sum beyond the range of int stays at its end; QWidget
     * itself keeps margins of up to 32767.
     */
    void updateMargins();

    /// Brings margins, mask, layout and picture up to date.
    void fullUpdate();

protected:
    /// Draws the fill and then the outline of \a path in the colours of \a palette; those of a
    /// raised or a sunken outline are the frame's own.
    void paintFrame(QPainter* painter, QPainterPath const& path, QPalette const& palette);

    /// Paints fill and outline, or of the interior no more than what is damaged.
    void paintEvent(QPaintEvent* event) override;
    /// Marks the mask for the next paint.
    void resizeEvent(QResizeEvent* event) override;

private:
    int m_radius;
    int m_lineWidth;
    QFrame::Shadow m_frameShadow;
    Shape m_frameShape;
    int m_margin;
    bool m_fillContents;
    bool m_widgetMask;
    bool m_maskDirty;
};

} // namespace ui
