#pragma once

#include <QStringList>

#include <optional>

/// The application style sheet that the gallery brings along.
QString exampleStyleSheet();

/// Whether Qt takes \a styleSheet as that of an application.
bool isWellFormed(const QString& styleSheet);

/**
 * What is wrong with \a styleSheet, for the user: the rules that Qt does not understand, and the
 * properties that it does not know, each with its line. A well-formed one may have the latter.
 */
QStringList styleSheetErrors(const QString& styleSheet);

/**
 * The application style sheet in the file \a path.
 *
 * Nothing, and a message for the user in \a error, if the file cannot be read or is not a style
 * sheet.
 */
std::optional<QString> readStyleSheet(const QString& path, QString* error);
