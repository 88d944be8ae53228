#include "VisibleTexts.h"

#include "Contrast.h"

#include <Switch.h>

#include <QComboBox>
#include <QHeaderView>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace test {

namespace {

/// Where the text of a button or the like is, without its outline, which may stand out more.
QRect middleOf(const QWidget& widget, const QString& text)
{
    const QFontMetrics metrics = widget.fontMetrics();
    const QSize size(metrics.horizontalAdvance(text) + 2, metrics.height() + 4);
    QRect rect(QPoint(), size.boundedTo(widget.size() - QSize(8, 8)));
    rect.moveCenter(widget.rect().center());
    return rect;
}

/// The part of \a widget that shows text; null if it shows none.
QRect textRect(const QWidget& widget)
{
    if (const auto* control = qobject_cast<const Switch*>(&widget))
        return control->text().isEmpty() ? QRect() : control->textRect();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() ? QRect() : label->contentsRect();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() ? QRect() : middleOf(widget, button->text());
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        const bool isEmpty = field->text().isEmpty() && field->placeholderText().isEmpty();
        return isEmpty ? QRect() : widget.rect().adjusted(4, 4, -4, -4);
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return box->currentText().isEmpty() ? QRect() : widget.rect().adjusted(6, 6, -40, -6);
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) {
        const bool isEmpty = text->toPlainText().isEmpty() && text->placeholderText().isEmpty();
        return isEmpty ? QRect() : text->viewport()->geometry();
    }
    return {};
}

/// The items of \a view that show text, without their icons, and the sections of a header.
QVector<QRect> itemRects(const QAbstractItemView& view)
{
    QVector<QRect> rects;
    const QPoint origin = view.viewport()->pos();
    if (const auto* header = qobject_cast<const QHeaderView*>(&view)) {
        for (int section = 0; section < header->count(); ++section)
            rects.append({origin.x() + header->sectionViewportPosition(section) + 2, origin.y() + 2,
                          header->sectionSize(section) - 4, header->height() - 4});
        return rects;
    }
    const QModelIndex root = view.rootIndex();
    for (int row = 0; row < view.model()->rowCount(root); ++row) {
        for (int column = 0; column < view.model()->columnCount(root); ++column) {
            const QModelIndex index = view.model()->index(row, column, root);
            // Without a theme of icons the model of Qt 6 has a null icon for a file.
            const bool hasIcon = !index.data(Qt::DecorationRole).value<QIcon>().isNull();
            const int icon = hasIcon ? qMax(24, view.iconSize().width()) : 0;
            const QRect rect =
                view.visualRect(index).translated(origin).adjusted(icon + 8, 2, 0, -2);
            if (!index.data().toString().isEmpty() && rect.width() > 8)
                rects.append(rect);
        }
    }
    return rects;
}

/// What is hidden by a scrolled area cannot be measured, but for the end of a line.
QRect visiblePart(const QWidget& widget, const QRect& rect, const QWidget& root)
{
    constexpr int fewLetters = 60; // pixels
    const QRect visible = rect & widget.visibleRegion().boundingRect();
    const bool isEnough = visible.topLeft() == rect.topLeft() && visible.height() == rect.height()
        && visible.width() >= qMin(rect.width(), fewLetters);
    return isEnough ? QRect(widget.mapTo(&root, visible.topLeft()), visible.size()) : QRect();
}

} // namespace

QString nameOf(const QWidget& widget)
{
    const QString text = widget.property("text").toString();
    return QStringLiteral("%1 \"%2\" %3")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(), text);
}

QVector<Text> textsIn(const QWidget& root, const QImage& picture, bool enabled)
{
    QVector<Text> texts;
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&root) || widget->isEnabled() != enabled)
            continue;
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        const QVector<QRect> rects = view ? itemRects(*view) : QVector<QRect>{textRect(*widget)};
        for (const QRect& rect : rects) {
            const QRect visible = visiblePart(*widget, rect, root);
            if (!visible.isEmpty())
                texts.append({nameOf(*widget), contrastIn(picture, visible)});
        }
    }
    return texts;
}

} // namespace test
