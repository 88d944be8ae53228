#pragma once

#include "platform_widgets_export.h"

#include <QPushButton>

QT_BEGIN_NAMESPACE
class QGridLayout;
class QLayoutItem;
QT_END_NAMESPACE

namespace ui {

/**
 * A push button whose face is laid out by a grid.
 *
 * \image html CGridArrangedButton.png "A button with an icon and two labels"
 *
 * \snippet CGridArrangedButton.cpp CGridArrangedButton
 *
 * Several labels, icons or other widgets make one large touch button with the usual frame, pressed
 * state and signals; it is as large as its own text and icon and its grid need. A text or icon of
 * the button itself is painted beneath the widgets of the grid, and nothing keeps them apart.
 *
 * \anchor looks_CGridArrangedButton
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | QPalette::Button | the face, by the style, as of any QPushButton |
 * | QPalette::ButtonText | text of the button itself, and labels with that setForegroundRole() |
 * | `ui--CGridArrangedButton` | its box, in states such as \c :pressed |
 * | `ui--CGridArrangedButton QLabel` | the labels of the grid, which do not take the \c color of the button |
 *
 * Its nearest neighbour is QPushButton, which lays nothing out on its face and, given a layout,
 * does not grow with it.
 *
 * Most functions do what the functions of QGridLayout with the same names do. Rows and columns
 * count from 0 to 999. Null pointers, cells outside of these, widgets that contain the button and
 * layout items that belong to another layout or a widget already are refused with a warning and
 * left alone; so is everything once the application has deleted or replaced the button's layout().
 */
class PLATFORM_WIDGETS_EXPORT CGridArrangedButton : public QPushButton
{
    Q_OBJECT

public:
    /// A button with an empty grid, owned by \a parent.
    explicit CGridArrangedButton(QWidget* parent = nullptr);
    /// The same with a text beneath the grid.
    explicit CGridArrangedButton(QString const& text, QWidget* parent = nullptr);
    /// The same with an icon and a text beneath the grid.
    CGridArrangedButton(QIcon const& icon, QString const& text, QWidget* parent = nullptr);
    ~CGridArrangedButton() override;

    /// What the button's own content and the grid need, each the larger of the two.
    QSize sizeHint() const override;
    /// The same for the smallest sizes.
    QSize minimumSizeHint() const override;

    /// Puts \a widget, which the button takes over from its former parent, into a cell.
    void addWidget(QWidget* widget, int row, int column,
                   QFlags<Qt::AlignmentFlag> alignment = Qt::Alignment());
    /// The same over several cells; a span of -1 reaches to the last row or column.
    void addWidget(QWidget* widget, int row, int column, int rowSpan, int columnSpan,
                   QFlags<Qt::AlignmentFlag> alignment = Qt::Alignment());
    /**
     * Puts \a item, which the grid takes over, into one or several cells.
     *
     * Nothing gets another parent. The widgets of a nested layout become children of the button if
     * the layout is a child of layout() before they are added to it:
     * `nested->setParent(button->layout())`.
     */
    void addItem(QLayoutItem* item, int row, int column, int rowSpan = 1, int columnSpan = 1,
                 QFlags<Qt::AlignmentFlag> alignment = Qt::Alignment());

    /// Least width of a column in pixels, 0 by default.
    void setColumnMinimumWidth(int column, int minSize);

    /// Share of a column in spare width, from 0; 0 by default and for columns that do not exist.
    int columnStretch(int column) const;
    /// Sets the share of a column in spare width; cut off at 2,147,483, the same below 0.
    void setColumnStretch(int column, int stretch);

    /// Least height of a row in pixels, 0 by default.
    void setRowMinimumHeight(int row, int minSize);

    /// Share of a row in spare height, from 0; 0 by default; cut off as that of a column.
    void setRowStretch(int row, int stretch);

    /// Distance of rows and columns in pixels; the style's own by default and for less than 0.
    void setSpacing(int spacing);
    /// Sets the distance of columns alone, as setSpacing().
    void setHorizontalSpacing(int spacing);
    /// Sets the distance of rows alone, as setSpacing().
    void setVerticalSpacing(int spacing);

    /**
     * Margins of the grid in pixels; the style's own by default and for less than 0.
     * This is not QWidget::setContentsMargins(), which sets the margins of the button; call that by
     * its full name where it is meant.
     */
    void setContentsMargins(int left, int top, int right, int bottom);

protected:
    /// Makes the grid and installs it; for constructors only.
    void create();

private:
    QGridLayout* m_gridLayout;
};

} // namespace ui
