#pragma once

#include <QObject>
#include <QRegion>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace test {

/// Records the regions of the paint events that a widget receives.
class PaintRecorder : public QObject
{
    Q_OBJECT

public:
    /// Watches \a widget, which must outlive the recorder.
    explicit PaintRecorder(QWidget* widget);

    /// The regions of the paint events since the last call, after the pending ones have been
    /// delivered.
    QVector<QRegion> takeRegions();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QVector<QRegion> m_regions;
};

} // namespace test
