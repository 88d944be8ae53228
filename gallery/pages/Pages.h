#pragma once

#include "SystemBattery.h"

#include <QStringList>
#include <QVector>

#include <functional>

class GalleryPage;
QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// How the gallery lists and makes a page.
struct PageEntry
{
    QString id; ///< File name stem of its screenshots.
    QString title; ///< Name in the list of pages.
    std::function<GalleryPage*(QWidget* parent)> create;
    QStringList classes; ///< Those of the library that it shows, with their namespaces.
};

/**
 * Every page of the gallery, in the order of its list.
 *
 * The file browser shows \a directories; without any the user's own and the top of the file system.
 */
QVector<PageEntry> allPages(const QStringList& directories = {});

/// Every widget at a glance, each of which leads to its page, and the versions of library and Qt.
GalleryPage* makeOverviewPage(QWidget* parent);

/// ui::CRoundedFrame plain, raised, sunken and filled, and masked over a picture.
GalleryPage* makeFramesPage(QWidget* parent);

/// ui::CGridArrangedButton with titles, values and icons.
GalleryPage* makeGridButtonPage(QWidget* parent);

/// Switch in all its states, in colours and times of the application's choice, and in a group.
GalleryPage* makeSwitchPage(QWidget* parent);

/// A form of ui::KeypadLineEdit and one plain ui::LineEdit; those at the bottom show where a keypad
/// goes for want of room.
GalleryPage* makeTextEntryPage(QWidget* parent);

/// ui::CBatteryStatusWidget in its states, frames and sizes, one to play with, and one that shows
/// \a systemBattery, read when the page is shown and when the kernel reports a change.
GalleryPage* makeBatteryPage(QWidget* parent, const SystemBattery& systemBattery = SystemBattery());

/// BreadCrumbsWidget, and ClickableLabel by itself.
GalleryPage* makePathPage(QWidget* parent);

/// Controls of an application's own: one derived from SelectionControl, one moved by an Animator.
GalleryPage* makeOwnControlsPage(QWidget* parent);

/// ui::widgets::ScrollIndicatorBar on areas that are dragged by touch, highlighted while they move.
GalleryPage* makeScrollIndicatorPage(QWidget* parent);

/// Animations that ui::CAnimationFwdRevLoop drives back and forth, first for some seconds, then on
/// request.
GalleryPage* makeAnimationPage(QWidget* parent);

/// ui::FileBrowserWidget on the real file system, in \a directories.
GalleryPage* makeFileBrowserPage(QWidget* parent, const QStringList& directories = {});
