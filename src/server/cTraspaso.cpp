#include "server/cTraspaso.h"

#include "server/Conexion.h"
#include "server/Consulta.h"
#include "server/Esquema.h"
#include "server/Ficheros.h"
#include "server/Migracion.h"

#include <QDir>
#include <QFileInfo>

#include <exception>

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

void prepararModelo(const QString &ruta)
{
    Conexion::olvidar(ruta);
    if (QFileInfo::exists(ruta))
        migrar(ruta, FormatoModelo, PasosModelo);
    else
        crearModelo(ruta);
    Conexion::modelo(ruta);
}

void prepararLecturas(const QString &ruta)
{
    Conexion::olvidar(ruta);
    prepararConsulta(ruta);
    Conexion::consulta(ruta);
}

template <class F> std::exception_ptr intentar(F &&preparar)
{
    try {
        preparar();
        return nullptr;
    } catch (...) {
        return std::current_exception();
    }
}

} // namespace

bool cTraspaso::Traspaso()
{
    crearCarpeta(m_carpeta);
    const auto modelo = intentar([&] { prepararModelo(m_modelo); });
    const auto consulta
        = intentar([&] { prepararLecturas(QDir(m_carpeta).filePath(u"OstrLec.mdb"_s)); });
    if (modelo)
        std::rethrow_exception(modelo);
    if (consulta)
        std::rethrow_exception(consulta);
    return false;
}

} // namespace servidor
