#pragma once

#include "GalleryPage.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

class PropertyGroup;
namespace ui {
class KeypadLineEdit;
}
struct ClassProperties;
QT_BEGIN_NAMESPACE
class QComboBox;
class QScrollArea;
class QVBoxLayout;
QT_END_NAMESPACE

/**
 * Tells when an object may have changed: a signal of it, a change event or a painting tells so.
 *
 * It looks at nothing by itself, so an object at rest costs nothing. Several changes in a short
 * time are told as one.
 */
class ObjectWatcher : public QObject
{
    Q_OBJECT

public:
    explicit ObjectWatcher(QObject* parent = nullptr);

    /// Watches \a target alone from now on; null for none.
    void setTarget(QObject* target);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void changed();

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void schedule();

private:
    void connectSignals();

    QPointer<QObject> m_target;
    QBasicTimer m_timer;
};

/**
 * Edits the Qt properties of one of several widgets, straight from its meta-object: a group per
 * class, a row per property.
 *
 * What a widget changes by itself is shown while the editor is visible. A filter leaves the rows of
 * which it is a part of the name.
 */
class PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyEditor(QWidget* parent = nullptr);

    /// Offers the widgets of \a demo widgets, and shows the first of them.
    void setDemoWidgets(const QList<GalleryPage::DemoWidget>& demoWidgets);

    /// The widget whose properties are shown; null if there is none.
    QWidget* target() const;

    /// Shows the properties of \a widget; nothing happens if it is not among the demo widgets.
    void setTarget(QWidget* widget);

    /// Shows the values that the properties have now.
    void refresh();

Q_SIGNALS:
    /// The properties of \a target are what is seen from now on; null if none are.
    void targetShown(QWidget* target);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void showDemoWidget(int index);
    void makeGroups();
    void replaceContents(QWidget* contents);
    PropertyGroup* addGroup(int position, const ClassProperties& properties);
    void updateDynamicGroup();
    void applyFilter();

    QList<QPointer<QWidget>> m_widgets;
    QPointer<QWidget> m_target;
    QComboBox* m_choice;
    ui::KeypadLineEdit* m_filter;
    QScrollArea* m_area;
    QVBoxLayout* m_groupLayout;
    QVector<PropertyGroup*> m_groups;
    PropertyGroup* m_dynamicGroup;
    QHash<QString, bool> m_unfolded; ///< By title, to leave the next widget's groups as they were.
    ObjectWatcher* m_watcher;
};
