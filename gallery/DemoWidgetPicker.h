#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class GalleryPage;
QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Notices which demo widget of a page the user taps, or reaches with the Tab key. Disabled ones
/// count too.
class DemoWidgetPicker : public QObject
{
    Q_OBJECT

public:
    explicit DemoWidgetPicker(QObject* parent = nullptr);

    /// Watches \a page from now on; null for none.
    void setPage(GalleryPage* page);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void picked(QWidget* demoWidget);

private:
    QWidget* demoWidgetAround(QWidget* widget) const;

    QPointer<QWidget> m_page;
    QVector<QWidget*> m_demoWidgets; ///< Of the page; to compare with, not to use.
};
