#pragma once

#include <QString>

/// Loads the declarant stored under `dni` and makes it the header's: empty, or why not.
QString tomarDeclarante(const QString &dni);
