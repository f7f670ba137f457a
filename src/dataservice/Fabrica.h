#pragma once

#include <QString>

#include <functional>
#include <memory>

/// Makes the objects of the data service by their programmatic identifier. The program registers
/// the real server once; a test may register a double. Letter case of an identifier is ignored.
namespace servicio {

/// Base of every service object, so that one registry can hold them all.
class Objeto
{
public:
    Objeto() = default;
    virtual ~Objeto() = default;
    Objeto(const Objeto &) = delete;
    Objeto &operator=(const Objeto &) = delete;
};

using Creador = std::function<std::unique_ptr<Objeto>()>;

/// Registers (or replaces) the maker of the objects called `id`.
void registrar(QStringView id, const Creador &creador);

/// A new object; throws std::runtime_error when nobody has registered `id`.
std::unique_ptr<Objeto> crear(QStringView id);

/// The same for a contract class, which names its identifier in `T::ID`. Throws also when what was
/// registered under that name is not a T.
template <class T> std::unique_ptr<T> crear()
{
    auto objeto = crear(T::ID);
    std::unique_ptr<T> comoT(&dynamic_cast<T &>(*objeto));
    static_cast<void>(objeto.release());
    return comoT;
}

} // namespace servicio
