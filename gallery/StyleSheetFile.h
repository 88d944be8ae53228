#pragma once

#include <QString>

#include <optional>

/// The application style sheet that the gallery brings along.
QString exampleStyleSheet();

/**
 * The application style sheet in the file \a path.
 *
 * Nothing, and a message for the user in \a error, if the file cannot be read or is not a style
 * sheet.
 */
std::optional<QString> readStyleSheet(const QString& path, QString* error);
