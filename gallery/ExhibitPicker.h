#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class GalleryPage;
QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Notices which exhibit of a page the visitor taps, or reaches with the Tab key. Disabled ones count too.
class ExhibitPicker : public QObject
{
    Q_OBJECT

public:
    explicit ExhibitPicker(QObject* parent = nullptr);

    /// Watches \a page from now on; null for none.
    void setPage(GalleryPage* page);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void picked(QWidget* exhibit);

private:
    QWidget* exhibitAround(QWidget* widget) const;

    QPointer<QWidget> m_page;
    QVector<QWidget*> m_exhibits; ///< Of the page; to compare with, not to use.
};
