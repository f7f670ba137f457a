#include "server/ValidacionDeclarante.h"

#include "resources/TablaMensajes.h"
#include "server/LectorRegistro.h"
#include "server/Sentencia.h"

#include <QString>

#include <algorithm>

namespace servidor {

namespace {

constexpr QStringView LetrasPersona = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView LetrasEntidad = u"JABCDEFGHI";

bool sonCifras(QStringView texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool controlPersona(int numero, QChar control)
{
    return control == LetrasPersona[numero % LetrasPersona.size()];
}

// Every second figure, from the first on, counts double, and its two figures are added up.
int cifraEntidad(QStringView cifras)
{
    int suma = 0;
    for (qsizetype i = 0; i < cifras.size(); ++i) {
        const int peso = (i % 2 == 0 ? 2 : 1) * cifras[i].digitValue();
        suma += peso / 10 + peso % 10;
    }
    return (10 - suma % 10) % 10;
}

bool controlEntidad(QChar clase, QStringView cifras, QChar control)
{
    const int cifra = cifraEntidad(cifras);
    const bool porCifra = control == QChar(u'0' + cifra);
    const bool porLetra = control == LetrasEntidad[cifra];
    if (QStringView(u"ABEH").contains(clase))
        return porCifra;
    if (QStringView(u"NPQRSW").contains(clase))
        return porLetra;
    return porCifra || porLetra;
}

} // namespace

bool nifValido(QStringView nif)
{
    if (nif.size() != 9 || !sonCifras(nif.mid(1, 7)))
        return false;
    const QChar clase = nif.front();
    const QStringView cifras = nif.mid(1, 7);
    if (clase.digitValue() >= 0)
        return sonCifras(nif.first(1)) && controlPersona(nif.first(8).toInt(), nif.back());
    if (const qsizetype extranjero = QStringView(u"XYZ").indexOf(clase); extranjero >= 0)
        return controlPersona(static_cast<int>(extranjero) * 10'000'000 + cifras.toInt(),
                              nif.back());
    if (QStringView(u"KLM").contains(clase))
        return controlPersona(cifras.toInt(), nif.back());
    return QStringView(u"ABCDEFGHJNPQRSUVW").contains(clase)
        && controlEntidad(clase, cifras, nif.back());
}

namespace {

bool sonCifras(const QString &texto, qsizetype cuantas)
{
    return texto.size() == cuantas
        && std::all_of(texto.begin(), texto.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

Regla reglaPostal(const QString &postal, qint32 provincia)
{
    if (!sonCifras(postal, 5))
        return Regla::PostalCincoCifras;
    if (postal.toInt() == 0)
        return Regla::PostalCero;
    if (postal.first(2).toInt() != provincia)
        return Regla::PostalDeOtraProvincia;
    return postal.toInt() % 1000 == 0 ? Regla::PostalTresUltimas : Regla::Ninguna;
}

Regla reglaTelefono(const QString &telefono, Telefono exigencia)
{
    if (telefono.isEmpty())
        return exigencia == Telefono::Obligatorio ? Regla::Telefono : Regla::Ninguna;
    return sonCifras(telefono, 9) ? Regla::Ninguna : Regla::TelefonoNueveCifras;
}

} // namespace

QList<Regla> reglasRotas(const Registro &datos, Telefono telefono)
{
    using namespace RegValidacion;
    LectorRegistro lector(datos, Total);
    QStringList textos;
    for (qsizetype campo = 0; campo < Total; ++campo)
        textos += lector.texto(campo);
    lector.exigirValido();

    const qint32 provincia = textos[CODPROV].toInt();
    const bool hayProvincia = provincia >= 1 && provincia <= Provincias;
    const bool faltaCodigo = provincia == ProvinciaPropia && textos[CODMUN].toInt() <= 0;
    const bool malCodigo = textos[CODMUN].size() > 3 || !sonCifras(textos[CODMUN]);

    QList<Regla> rotas;
    const auto anotar = [&](bool rota, Regla regla) {
        if (rota)
            rotas += regla;
    };
    anotar(!nifValido(textos[DNI]), Regla::Dni);
    anotar(textos[NOMBRE].isEmpty(), Regla::Nombre);
    anotar(textos[DOMICILIO].isEmpty(), Regla::Domicilio);
    anotar(!hayProvincia, Regla::Provincia);
    const Regla postal = reglaPostal(textos[CODPOS], provincia);
    // Without a province there is nothing for the postal code to disagree with.
    anotar(postal != Regla::Ninguna && (hayProvincia || postal != Regla::PostalDeOtraProvincia),
           postal);
    anotar(faltaCodigo || malCodigo, Regla::CodigoMunicipio);
    anotar(textos[NOMMUN].isEmpty(), Regla::Municipio);
    const Regla numero = reglaTelefono(textos[TELEFONO], telefono);
    anotar(numero != Regla::Ninguna, numero);
    return rotas;
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

Registro datosValidacion(const Registro &registro)
{
    using namespace RegDeclarante;
    Registro datos;
    for (const Campo campo : {DNI, NOMBRE, DOMICILIO, CODPROV, CODPOS, CODMUN, NOMMUN, TELEFONO})
        datos += registro[campo].toString();
    return datos;
}

template <class T> bool existe(const PConexion &lectura, const char *sql, const T &codigo)
{
    return Sentencia(lectura, sql).con(codigo).fila();
}

QList<Regla> codigosDesconocidos(const PConexion &lectura, const Registro &registro)
{
    using namespace RegDeclarante;
    QList<Regla> rotas;
    const qint64 provincia = registro[CODPROV].toString().trimmed().toInt();
    const qint64 municipio = registro[CODMUN].toString().trimmed().toInt();
    if (!existe(lectura, "SELECT 1 FROM T07_SIGLASVIA WHERE T07_CODIGO = ?",
                normalizado(registro[VIA].toString())))
        rotas += Regla::Via;
    // A code that is not there at all is told by the rules of the form.
    if (provincia > 0 && provincia <= Provincias
        && !existe(lectura, "SELECT 1 FROM T05_PROVINCIAS WHERE T05_PRO_ID = ?", provincia))
        rotas += Regla::ProvinciaDesconocida;
    if (provincia == ProvinciaPropia && municipio > 0
        && !existe(lectura, "SELECT 1 FROM T06_MUNICIPIOS WHERE T06_CODMUN = ?", municipio))
        rotas += Regla::MunicipioDesconocido;
    LectorRegistro lector(registro, Total);
    lector.codigo(NUMERO, 99'999);
    if (!lector.valido())
        rotas += Regla::Numero;
    return rotas;
}

} // namespace

Filas hallazgosImportar(const PConexion &lectura, const Registro &registro, qint16 idioma)
{
    LectorRegistro(registro, RegDeclarante::Total).exigirValido();
    const QList<Regla> rotas
        = reglasRotas(datosValidacion(registro), servidor::Telefono::PuedeFaltar)
        + codigosDesconocidos(lectura, registro);
    Filas filas;
    for (const Regla regla : rotas)
        filas.append(QVariant(QVariantList{texto(regla, idiomaDe(idioma))}));
    return filas;
}

} // namespace servidor
