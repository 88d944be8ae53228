#pragma once

#include <QMetaType>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace test {

/// What one would use in place of a class of this library.
struct Counterpart
{
    const char* name = nullptr;
    QWidget* (*create)(QWidget* parent) = nullptr;
};

/// A class of the library, as the tests and benchmarks over every class use it.
struct ClassInfo
{
    const char* name; ///< That of the class, without namespaces, and of its header.
    const QMetaObject* metaObject;
    QObject* (*create)(QWidget* parent); ///< An object that is deleted with \a parent.
    void (*setTypicalState)(QObject& object) = nullptr; ///< Null if the state at first is typical.
    Counterpart counterpart = {}; ///< Of widgets only, without a name if Qt has none.

    bool isWidget() const;
    QObject* createTypical(QWidget* parent) const;
    /// The same, shown with its parent; null of an object that is no widget, or a window of its
    /// own.
    QWidget* createTypicalWidget(QWidget* parent) const;
};

/// All classes. That each public header has its row is checked where the table is compiled.
const QVector<ClassInfo>& allClasses();
QVector<ClassInfo> allWidgetClasses();

/// The names of \a classes that \a covered lacks, and what \a covered names that is none of them.
QString uncovered(const QStringList& covered, const QVector<ClassInfo>& classes = allClasses());

} // namespace test

Q_DECLARE_METATYPE(test::ClassInfo)
