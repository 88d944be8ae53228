#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QComboBox;
class QHBoxLayout;
class QListView;
class QPushButton;
class QTreeView;
class QVBoxLayout;
QT_END_NAMESPACE

class BreadCrumbsWidget;

namespace ui {
class FileSystemModel;
} // namespace ui

namespace test {

/**
 * The file browser written down as plainly as can be: with function calls that nest as deeply as
 * directories are selected, with views that are simply shown and hidden, and without any thought
 * for programs that delete parts of it. The browser has to match it step by step.
 */
class RecursiveBrowser : public QWidget
{
    Q_OBJECT

public:
    explicit RecursiveBrowser(QWidget* parent = nullptr);
    ~RecursiveBrowser() override;

    void setAllowedDirs(const QStringList& dirs);
    void setRootPath(const QString& path);
    QString currentPath() const;
    QStringList selectedFiles() const;

Q_SIGNALS:
    void selectionChanged();

private:
    QHBoxLayout* createNavBar();
    QVBoxLayout* createFileView();
    QPushButton* newToolbarButton(const QString& icon);
    void openDirectory(const QString& path);
    void handleSelection();

    ui::FileSystemModel* m_model;
    BreadCrumbsWidget* m_breadCrumbs = nullptr;
    QComboBox* m_rootCombo;
    QListView* m_tileView;
    QTreeView* m_listView;
};

} // namespace test
