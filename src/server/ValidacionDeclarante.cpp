#include "server/ValidacionDeclarante.h"

#include "resources/TablaMensajes.h"
#include "server/LectorRegistro.h"
#include "server/Sentencia.h"

#include <algorithm>
#include <array>

namespace servidor {

namespace {

constexpr std::string_view LetrasPersona = "TRWAGMYFPDXBNJZSQVHLCKE";
constexpr std::string_view LetrasEntidad = "JABCDEFGHI";

bool sonCifras(std::string_view texto)
{
    return std::ranges::all_of(texto, [](char c) { return c >= '0' && c <= '9'; });
}

bool sonCifras(std::string_view texto, std::size_t cuantas)
{
    return texto.size() == cuantas && sonCifras(texto);
}

bool esUna(char letra, std::string_view letras)
{
    return letras.find(letra) != std::string_view::npos;
}

/// A text of nine digits at most; 0 when it is none.
int cifras(std::string_view texto)
{
    return numero(texto, 999'999'999).value_or(0);
}

bool controlPersona(int numero, char control)
{
    return control == LetrasPersona[static_cast<std::size_t>(numero) % LetrasPersona.size()];
}

// Every second figure, from the first on, counts double, and its two figures are added up.
int cifraEntidad(std::string_view cifras)
{
    int suma = 0;
    for (std::size_t i = 0; i < cifras.size(); ++i) {
        const int peso = (i % 2 == 0 ? 2 : 1) * (cifras[i] - '0');
        suma += peso / 10 + peso % 10;
    }
    return (10 - suma % 10) % 10;
}

bool controlEntidad(char clase, std::string_view cifras, char control)
{
    const int cifra = cifraEntidad(cifras);
    const bool porCifra = control == '0' + cifra;
    const bool porLetra = control == LetrasEntidad[static_cast<std::size_t>(cifra)];
    if (esUna(clase, "ABEH"))
        return porCifra;
    if (esUna(clase, "NPQRSW"))
        return porLetra;
    return porCifra || porLetra;
}

} // namespace

bool nifValido(std::string_view nif)
{
    if (nif.size() != 9 || !sonCifras(nif.substr(1, 7)))
        return false;
    const char clase = nif.front();
    const std::string_view centro = nif.substr(1, 7);
    if (sonCifras(nif.substr(0, 1)))
        return controlPersona(cifras(nif.substr(0, 8)), nif.back());
    if (const auto extranjero = std::string_view("XYZ").find(clase);
        extranjero != std::string_view::npos)
        return controlPersona(static_cast<int>(extranjero) * 10'000'000 + cifras(centro),
                              nif.back());
    if (esUna(clase, "KLM"))
        return controlPersona(cifras(centro), nif.back());
    return esUna(clase, "ABCDEFGHJNPQRSUVW") && controlEntidad(clase, centro, nif.back());
}

namespace {

/// The texts of a RegValidacion.
using TextosValidacion = std::array<std::string_view, RegValidacion::Total>;

enum class Telefono { Obligatorio, PuedeFaltar };

Regla reglaPostal(std::string_view postal, qint32 provincia)
{
    if (!sonCifras(postal, 5))
        return Regla::PostalCincoCifras;
    if (cifras(postal) == 0)
        return Regla::PostalCero;
    if (cifras(postal.substr(0, 2)) != provincia)
        return Regla::PostalDeOtraProvincia;
    return cifras(postal) % 1000 == 0 ? Regla::PostalTresUltimas : Regla::Ninguna;
}

Regla reglaTelefono(std::string_view telefono, Telefono exigencia)
{
    if (telefono.empty())
        return exigencia == Telefono::Obligatorio ? Regla::Telefono : Regla::Ninguna;
    return sonCifras(telefono, 9) ? Regla::Ninguna : Regla::TelefonoNueveCifras;
}

/// The rules that are broken, in the order in which they are told; at most one a field.
QList<Regla> reglasRotas(const TextosValidacion &textos, Telefono telefono)
{
    using namespace RegValidacion;
    const qint32 provincia = cifras(textos[CODPROV]);
    const bool hayProvincia = provincia >= 1 && provincia <= Provincias;
    const bool faltaCodigo = provincia == ProvinciaPropia && cifras(textos[CODMUN]) == 0;
    const bool malCodigo = textos[CODMUN].size() > 3 || !sonCifras(textos[CODMUN]);

    QList<Regla> rotas;
    const auto anotar = [&](bool rota, Regla regla) {
        if (rota)
            rotas += regla;
    };
    anotar(!nifValido(textos[DNI]), Regla::Dni);
    anotar(textos[NOMBRE].empty(), Regla::Nombre);
    anotar(textos[DOMICILIO].empty(), Regla::Domicilio);
    anotar(!hayProvincia, Regla::Provincia);
    const Regla postal = reglaPostal(textos[CODPOS], provincia);
    // Without a province there is nothing for the postal code to disagree with.
    anotar(postal != Regla::Ninguna && (hayProvincia || postal != Regla::PostalDeOtraProvincia),
           postal);
    anotar(faltaCodigo || malCodigo, Regla::CodigoMunicipio);
    anotar(textos[NOMMUN].empty(), Regla::Municipio);
    const Regla delTelefono = reglaTelefono(textos[TELEFONO], telefono);
    anotar(delTelefono != Regla::Ninguna, delTelefono);
    return rotas;
}

} // namespace

qint16 primeraReglaRota(const Registro &datos)
{
    LectorRegistro lector(datos, RegValidacion::Total);
    std::array<std::string, RegValidacion::Total> textos;
    TextosValidacion vistas;
    for (std::size_t campo = 0; campo < textos.size(); ++campo)
        vistas[campo] = textos[campo] = lector.texto(static_cast<qsizetype>(campo)).toStdString();
    lector.exigirValido();
    return static_cast<qint16>(reglasRotas(vistas, Telefono::Obligatorio).value(0));
}

namespace {

QString texto(Regla regla, Idioma idioma)
{
    const bool delFormulario = regla <= Regla::Telefono;
    const Msj primero = delFormulario ? Msj::ErrorDni : Msj::ErrorViaDesconocida;
    const Regla primera = delFormulario ? Regla::Dni : Regla::Via;
    const int k = static_cast<int>(regla) - static_cast<int>(primera);
    return textoMensaje(static_cast<int>(primero) + k, idioma);
}

template <class Codigos> Codigos codigos(const PConexion &lectura, const char *sql)
{
    Codigos leidos;
    Sentencia sentencia(lectura, sql);
    while (sentencia.fila()) {
        if constexpr (std::is_same_v<typename Codigos::key_type, std::string>)
            leidos.insert(sentencia.texto(0).toStdString());
        else
            leidos.insert(sentencia.entero(0));
    }
    return leidos;
}

} // namespace

ReglasImportar::ReglasImportar(const PConexion &lectura, qint16 idioma)
    : m_idioma(idiomaDe(idioma))
    , m_vias(codigos<decltype(m_vias)>(lectura, "SELECT T07_CODIGO FROM T07_SIGLASVIA"))
    , m_provincias(
          codigos<decltype(m_provincias)>(lectura, "SELECT T05_PRO_ID FROM T05_PROVINCIAS"))
    , m_municipios(
          codigos<decltype(m_municipios)>(lectura, "SELECT T06_CODMUN FROM T06_MUNICIPIOS"))
{
}

QList<Regla> ReglasImportar::codigosDesconocidos(const DatosDeclarante &declarante) const
{
    using namespace RegDeclarante;
    const qint32 provincia = declarante.codigo(CODPROV).value_or(0);
    const qint32 municipio = declarante.codigo(CODMUN).value_or(0);
    QList<Regla> rotas;
    if (!m_vias.contains(declarante.textos[VIA]))
        rotas += Regla::Via;
    // A code that is not there at all is told by the rules of the form.
    if (provincia > 0 && provincia <= Provincias && !m_provincias.contains(provincia))
        rotas += Regla::ProvinciaDesconocida;
    if (provincia == ProvinciaPropia && municipio > 0 && !m_municipios.contains(municipio))
        rotas += Regla::MunicipioDesconocido;
    if (!declarante.codigo(NUMERO))
        rotas += Regla::Numero;
    return rotas;
}

QStringList ReglasImportar::hallazgos(const DatosDeclarante &declarante) const
{
    using namespace RegDeclarante;
    const auto &t = declarante.textos;
    const TextosValidacion delFormulario{t[DNI],    t[NOMBRE], t[DOMICILIO], t[CODPROV],
                                         t[CODPOS], t[CODMUN], t[NOMMUN],    t[TELEFONO]};
    QStringList textos;
    for (const Regla regla : reglasRotas(delFormulario, Telefono::PuedeFaltar))
        textos += texto(regla, m_idioma);
    for (const Regla regla : codigosDesconocidos(declarante))
        textos += texto(regla, m_idioma);
    return textos;
}

} // namespace servidor
