#pragma once

#include <QWidget>

class Journal;

/// A file browser over two small trees that it makes itself.
class BrowserScene : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString path READ path)
    Q_PROPERTY(QStringList selected READ selected)

public:
    explicit BrowserScene(Journal& journal);

    QString path() const;
    /// The names of the selected files.
    QStringList selected() const;

    Q_INVOKABLE void selectSeveral();
};
