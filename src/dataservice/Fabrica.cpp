#include "dataservice/Fabrica.h"

#include <QHash>

#include <stdexcept>

namespace servicio {

static QHash<QString, Creador> &registro()
{
    static QHash<QString, Creador> tabla;
    return tabla;
}

void registrar(QStringView id, const Creador &creador)
{
    registro().insert(id.toString().toLower(), creador);
}

std::unique_ptr<Objeto> crear(QStringView id)
{
    const auto hallado = registro().constFind(id.toString().toLower());
    if (hallado == registro().constEnd())
        throw std::runtime_error("no service object is registered as "
                                 + id.toString().toStdString());
    return (*hallado)();
}

} // namespace servicio
