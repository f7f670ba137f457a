#pragma once

#include <functional>
#include <memory>

/// Records and session state exist once each, made on first use.
namespace unico {

/// Remembers how to drop one instance; used by la().
void alReiniciar(std::function<void()> borrar);

/// Drops every instance, so that the next use makes a fresh one. References taken before are
/// invalid afterwards; for the start of a test.
void reiniciar();

/// The one T of the session.
template <class T> T &la()
{
    static std::unique_ptr<T> instancia;
    if (!instancia) {
        instancia = std::make_unique<T>();
        alReiniciar([] { instancia.reset(); });
    }
    return *instancia;
}

} // namespace unico
