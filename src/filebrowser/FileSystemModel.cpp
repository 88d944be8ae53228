#include "ui/FileSystemModel.h"

namespace ui {

namespace {

enum Column { NameColumn, SizeColumn, TypeColumn, DateColumn };

bool isDateAlignment(int section, int role)
{
    return section == DateColumn && role == Qt::TextAlignmentRole;
}

/// Without a vertical flag, unlike the base class's alignments.
QVariant dateAlignment()
{
    return int(Qt::AlignRight);
}

} // namespace

FileSystemModel::FileSystemModel(QObject* parent)
    : QFileSystemModel(parent)
{
}

FileSystemModel::~FileSystemModel() = default;

QVariant FileSystemModel::data(const QModelIndex& index, int role) const
{
    if (isDateAlignment(index.column(), role))
        return dateAlignment();
    return QFileSystemModel::data(index, role);
}

QVariant FileSystemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (isDateAlignment(section, role))
        return dateAlignment();
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QFileSystemModel::headerData(section, orientation, role);
    switch (section) {
    case NameColumn:
        return tr("Name");
    case SizeColumn:
        return tr("Size");
    case DateColumn:
        return tr("Date Modified");
    default:
        return QString();
    }
}

} // namespace ui
