#pragma once

#include <QString>

/// Where the reference of the library's classes is.
namespace reference {

/// The page of \a className, its namespaces included, in the file system; empty if there is none.
QString classPage(const QString& className);

/// \a className without its namespaces.
QString shortName(const QString& className);

} // namespace reference
