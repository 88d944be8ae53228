#pragma once

#include "platform_widgets_export.h"

#include <QFileSystemModel>

namespace ui {

/**
 * The file system model behind both views of FileBrowserWidget.
 *
 * It is QFileSystemModel with short header texts of its own and a right-aligned modification date.
 * Everything else (watching, lazy population, icons, formatting, sorting) is the base class's.
 *
 * \image html FileSystemModel.png "The model beside its base class"
 *
 * \snippet FileSystemModel.cpp FileSystemModel
 *
 * The class has no meta-object of its own, so that its header texts are found in Qt's own
 * translations, in the context QFileSystemModel.
 *
 * It paints nothing: the views that show it have the palette roles and hooks of Qt.
 *
 * The columns are name (0), size (1), type (2) and date modified (3).
 */
class PLATFORM_WIDGETS_EXPORT FileSystemModel : public QFileSystemModel
{
public:
    /// A model without a root path; \a parent, if any, owns it.
    explicit FileSystemModel(QObject* parent = nullptr);
    ~FileSystemModel() override;

    /// The base class's data, but for the date column, which is aligned with a plain
    /// Qt::AlignRight.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /**
     * The horizontal header texts "Name", "Size", an empty text and "Date Modified"; an empty text
     * for any further section too. Section 3 is aligned with a plain Qt::AlignRight, in the
     * vertical header as well. All else is the base class's.
     */
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
};

} // namespace ui
