#pragma once

#include "ui/FileSystemModel.h"

#include <QListView>

#include <functional>

namespace test {

/**
 * The selection handling of the file browser written down as plainly as can be: with function calls
 * that nest as deeply as directories are selected. The browser has to match it step by step.
 */
class RecursiveBrowser
{
public:
    explicit RecursiveBrowser(const QString& rootPath);

    QListView tileView;
    /// Called in place of the signal selectionChanged().
    std::function<void()> selectionChanged = [] {};
    /// Called for each change that the selection model reports, before it is handled.
    std::function<void(const QItemSelection& deselected)> deselected = [](const QItemSelection&) {};

    QString currentPath() const;
    /// The path that the path bar was given by the last directory opened.
    QString barPath() const;

private:
    void handleSelection();

    ui::FileSystemModel m_model;
    QString m_barPath;
};

} // namespace test
