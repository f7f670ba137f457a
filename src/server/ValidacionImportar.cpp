#include "server/ValidacionImportar.h"

#include "resources/Mensajes.h"
#include "server/LectorRegistro.h"
#include "server/Sentencia.h"
#include "server/ValidacionDeclarante.h"

namespace servidor {

namespace {

QString texto(Regla regla, Idioma idioma)
{
    const bool delFormulario = regla <= Regla::Telefono;
    const Msj primero = delFormulario ? Msj::ErrorDni : Msj::ErrorViaDesconocida;
    const Regla primera = delFormulario ? Regla::Dni : Regla::Via;
    const int k = static_cast<int>(regla) - static_cast<int>(primera);
    return textoMensaje(static_cast<int>(primero) + k, idioma);
}

Registro datosValidacion(const Registro &registro)
{
    using namespace RegDeclarante;
    Registro datos;
    for (const Campo campo : {DNI, NOMBRE, DOMICILIO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO})
        datos += registro[campo].toString();
    return datos;
}

template <class T> bool existe(const PConexion &consulta, const char *sql, const T &codigo)
{
    return Sentencia(consulta, sql).con(codigo).fila();
}

QList<Regla> codigosDesconocidos(const PConexion &consulta, const Registro &registro)
{
    using namespace RegDeclarante;
    QList<Regla> rotas;
    const qint64 provincia = registro[CODPROV].toString().trimmed().toInt();
    const qint64 municipio = registro[CODMUN].toString().trimmed().toInt();
    if (!existe(consulta, "SELECT 1 FROM T07_SIGLASVIA WHERE T07_CODIGO = ?",
                normalizado(registro[VIA].toString())))
        rotas += Regla::Via;
    // A code that is not there at all is told by the rules of the form.
    if (provincia > 0 && provincia <= Provincias
        && !existe(consulta, "SELECT 1 FROM T05_PROVINCIAS WHERE T05_PRO_ID = ?", provincia))
        rotas += Regla::ProvinciaDesconocida;
    if (provincia == ProvinciaPropia && municipio > 0
        && !existe(consulta, "SELECT 1 FROM T06_MUNICIPIOS WHERE T06_CODMUN = ?", municipio))
        rotas += Regla::MunicipioDesconocido;
    LectorRegistro lector(registro, Total);
    lector.codigo(NUMERO, 99'999);
    if (!lector.valido())
        rotas += Regla::Numero;
    return rotas;
}

} // namespace

Filas hallazgosImportar(const PConexion &consulta, const Registro &registro, qint16 idioma)
{
    LectorRegistro(registro, RegDeclarante::Total).exigirValido();
    const QList<Regla> rotas
        = reglasRotas(datosValidacion(registro), servidor::Telefono::PuedeFaltar)
        + codigosDesconocidos(consulta, registro);
    Filas filas;
    for (const Regla regla : rotas)
        filas.append(QVariant(QVariantList{texto(regla, idiomaDe(idioma))}));
    return filas;
}

} // namespace servidor
