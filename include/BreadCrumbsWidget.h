#pragma once

#include "platform_widgets_export.h"

#include <QDir>
#include <QStringList>
#include <QWidget>

#include <memory>

class ClickableLabel;
QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QPushButton;
QT_END_NAMESPACE

/**
 * A path bar: the components of a directory's path below a root directory, each of them tappable.
 *
 * At most three components ("crumbs") are shown, the last ones, each after a "/". The others are
 * in the menu of a "..." button in front of them. The bar only reports what is picked: call
 * changeDir() to follow. Qt has no such widget; QFileDialog's list of recent and parent directories
 * comes nearest.
 *
 * \image html BreadCrumbsWidget.png "A path bar below /data, mostly with a style sheet for fingers"
 *
 * \snippet BreadCrumbsWidget.cpp BreadCrumbsWidget
 *
 * The crumbs are ClickableLabel objects. The root has no crumb. The file system is not consulted:
 * paths need not exist.
 *
 * \anchor looks_BreadCrumbsWidget
 * \par Palette roles and style-sheet hooks
 * | Role, property or selector | Effect |
 * |---|---|
 * | QPalette::WindowText | the crumbs and the slashes between them |
 * | QPalette::Button, QPalette::ButtonText | the "..." button, as of any QPushButton |
 * | `#breadcrumb` | each crumb, by its object name: colour, font, least height |
 * | `[directory="..."]` | the crumb of that path, by a dynamic property |
 * | `BreadCrumbsWidget QLabel` | crumbs and slashes |
 * | `BreadCrumbsWidget QPushButton` | the "..." button |
 *
 * Without a style sheet a row of crumbs alone is as high as their font, and cuts them off at the
 * top: give them a \c min-height of half as much again, or of a finger's width.
 */
class PLATFORM_WIDGETS_EXPORT BreadCrumbsWidget : public QWidget
{
    Q_OBJECT

public:
    /// An empty bar below "/"; \a parent owns it. The first crumbs come with the first path set.
    explicit BreadCrumbsWidget(QWidget* parent = nullptr);
    ~BreadCrumbsWidget() override;

    /// Makes \a path both the root and the current directory, so that no crumb is shown.
    void setRootPath(QString path);

    /**
     * Shows the components of \a path below the root; none if it lies outside the root.
     *
     * The path relative to the root is cut to as many characters, from its end, as stand before its
     * first "."; names without a dot are shown in full.
     */
    void changeDir(QString path);

    /**
     * Rebuilds the row. The crumbs shown until then are deleted at once; only the one whose press
     * with the right button is being reported is hidden and deleted later, as Qt has a context menu
     * event for it then.
     */
    void refresh();

Q_SIGNALS:
    /**
     * Emitted when a crumb is pressed or an entry of the "..." menu is chosen. The bar itself does
     * not change. In a slot the bar may be deleted if the left button was pressed on a crumb; a
     * menu is open otherwise, or about to be asked for, so use deleteLater() where that can happen.
     *
     * \param path the directory picked: the root's path, a slash and the components up to it. Below
     * the root "/" it begins with two slashes.
     */
    void dirChanged(QString path);

private:
    PLATFORM_WIDGETS_NO_EXPORT void addCrumb(const QString& crumb, const QString& path);
    PLATFORM_WIDGETS_NO_EXPORT void report(ClickableLabel* label);
    PLATFORM_WIDGETS_NO_EXPORT void showHiddenCrumbs();

    QDir m_rootDir;
    QDir m_currentDir;
    int m_maxVisibleCrumbs;
    QStringList m_crumbs;
    // Members go in reverse order: the layout first, then the button.
    std::unique_ptr<QPushButton> m_moreButton;
    std::unique_ptr<QHBoxLayout> m_layout;
};
