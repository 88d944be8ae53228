#pragma once

#include <QDialog>

class QPushButton;

namespace ui {
class FileBrowserWidget;
}

/// Lets the user choose one file below \a folders.
class FileDialog : public QDialog
{
    Q_OBJECT

public:
    FileDialog(const QStringList& folders, const QStringList& filters, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user has chosen the file at \a path. The dialog closes after that.
    void chosen(const QString& path);

private:
    QString selectedFile() const;
    void showSelection();

    ui::FileBrowserWidget* m_browser;
    QPushButton* m_open;
};
