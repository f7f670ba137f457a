#pragma once

#include "dataservice/ErrorDatos.h"

#include <SQLiteCpp/Exception.h>
#include <cerrno>
#include <utility>

namespace servidor {

/// The ErrorDatos that says what a SQLite error just caught means for the user.
ErrorDatos traducir(const SQLite::Exception &error, const QString &ruta);

/// Runs `f`, turning SQLite errors into ErrorDatos about `ruta`.
template <class F> decltype(auto) conErrores(const QString &ruta, F &&f)
{
    errno = 0; // what is found there afterwards is of this call
    try {
        return std::forward<F>(f)();
    } catch (const SQLite::Exception &error) {
        throw traducir(error, ruta);
    }
}

} // namespace servidor
