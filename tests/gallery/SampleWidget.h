#pragma once

#include "GalleryPage.h"

#include <QColor>
#include <QEasingCurve>
#include <QFont>
#include <QWidget>

namespace test {

/// A widget with a property of every kind that the property editor tells apart.
class SampleWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool marked MEMBER m_marked)
    Q_PROPERTY(int level READ level WRITE setLevel)
    Q_PROPERTY(double fraction READ fraction WRITE setFraction)
    Q_PROPERTY(QString caption MEMBER m_caption)
    Q_PROPERTY(QColor color MEMBER m_color)
    Q_PROPERTY(QFont captionFont MEMBER m_captionFont)
    Q_PROPERTY(Mood mood MEMBER m_mood)
    Q_PROPERTY(Sides sides READ sides WRITE setSides)
    Q_PROPERTY(Qt::Alignment alignment MEMBER m_alignment)
    Q_PROPERTY(QPoint origin MEMBER m_origin)
    Q_PROPERTY(QSize extent MEMBER m_extent)
    Q_PROPERTY(QRect area MEMBER m_area)
    Q_PROPERTY(QEasingCurve curve MEMBER m_curve)
    Q_PROPERTY(QObject* companion READ companion)
    Q_PROPERTY(int answer READ answer)
    Q_PROPERTY(int secret WRITE setSecret)
    Q_PROPERTY(int height READ height WRITE setLevel) // declared by QWidget as well

public:
    enum class Mood { Calm, Cheerful = 4, Grumpy = -2 };
    Q_ENUM(Mood)

    enum Side { NoSide = 0, Left = 1, Start = 1, Right = 2, Top = 4, Both = 3 };
    Q_DECLARE_FLAGS(Sides, Side)
    Q_FLAG(Sides)

    explicit SampleWidget(QWidget* parent = nullptr);

    /// 0 to 100; what is out of range becomes the nearer end.
    int level() const;
    void setLevel(int level);

    /// 0 to 1; what is out of range is ignored.
    double fraction() const;
    void setFraction(double fraction);

    Sides sides() const;
    void setSides(Sides sides);

    QObject* companion() const;
    int answer() const;
    void setSecret(int secret);

private:
    bool m_marked = false;
    int m_level = 50;
    double m_fraction = 0.5;
    QString m_caption = QStringLiteral("caption");
    QColor m_color = QColor(10, 20, 30, 40);
    QFont m_captionFont = QFont(QStringLiteral("DejaVu Sans"), 12);
    Mood m_mood = Mood::Calm;
    Sides m_sides = Left;
    Qt::Alignment m_alignment = Qt::AlignLeft;
    QPoint m_origin = QPoint(1, 2);
    QSize m_extent = QSize(3, 4);
    QRect m_area = QRect(5, 6, 7, 8);
    QEasingCurve m_curve;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SampleWidget::Sides)

/// A page of two sample widgets, "first" with a child "inner", and "second", and of a button that
/// is no demo widget.
class SamplePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SamplePage(QWidget* parent = nullptr);
};

/// A page without demo widgets.
class EmptyPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit EmptyPage(QWidget* parent = nullptr);
};

} // namespace test
