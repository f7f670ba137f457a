#pragma once

#include "dataservice/ConjuntoDeclarantes.h"
#include "dataservice/Fabrica.h"
#include "dataservice/Registros.h"

#include <QByteArray>
#include <QStringView>

#include <functional>

/// The data service of the program: declarants, returns, settings and lookups in two databases.
///
/// Use: servicio::crear<...>(), set the database path(s), call one method, release. A call that
/// cannot be carried out throws ErrorDatos and has changed nothing; validation outcomes are
/// results. A record of the wrong length, or with a field of the wrong kind, is the caller's
/// mistake and throws std::invalid_argument (Guardar430 and Guardar480 return 0). `idioma` is 0
/// (Castilian) or 10000 (Basque).
///
/// Every stored row has a check value. What does not match it is never handed out, nor written
/// over: the call throws ErrorDatos (Fallo::RegistroDanado) that names it, and a list of many has a
/// row in its place that says so. It can be deleted.
namespace SvrOstr {

/// General lookups and settings.
class cDatosGeneral : public servicio::Objeto
{
public:
    static constexpr QStringView ID = u"SvrOstr.cDatosGeneral";

    virtual void mdbname(const QString &ruta) = 0; ///< path of the database that the call needs

    // Model database.
    virtual qint32 NumeroDeclarantes() = 0;
    virtual void CambiarIdioma(const QString &codigo) = 0; ///< "C" or "E"
    virtual QString ObtenerIdioma() = 0; ///< empty while none was chosen
    virtual void GuardarActOnline(qint16 valor) = 0;
    virtual qint16 ObtenerActOnline() = 0; ///< 0 while it was never stored

    // Lookup database.
    virtual void DameEjerPerMinMax(Registro &limites) = 0; ///< RegLimites
    /// Name of province `codigo` ("20"); empty when there is none.
    virtual void ObtenerNombreProvincia(const QString &codigo, QString &nombre, qint16 idioma) = 0;
    virtual void ObtenerNombreMunicipio(const QString &codigo, QString &nombre) = 0;
    /// Rows (code, name) for a pick list; `sql` is one of ListasSql, below.
    virtual void CargarProvincias(const QString &sql, Filas &filas) = 0;
    virtual void CargarMunicipios(const QString &sql, Filas &filas) = 0;
    virtual void CargarVias(const QString &sql, Filas &filas) = 0;
    /// The rates (percent) in force during a year, in time order: one (0 before the first
    /// rate known), or two when it changed. Throws ErrorDatos (Fallo::TiposDeMas) for more.
    virtual void ObtenerTipoAnual(Registro &tipos, qint16 ejercicio) = 0;
    /// The rate (percent) of a month; 0 before the first rate known.
    virtual float ObtenerTipoImpositivo(qint16 ejercicio, quint8 periodo) = 0;
    virtual QString URLAct() = 0;
};

/// Declarants.
class cDeclarante : public servicio::Objeto
{
public:
    static constexpr QStringView ID = u"SvrOstr.cDeclarante";

    virtual void mdbnameM(const QString &ruta) = 0; ///< model database
    virtual void mdbnameL(const QString &ruta) = 0; ///< lookup database

    virtual void CargarDeclarante(qint32 &CSCO, Registro &registro) = 0; ///< RegDeclarante
    /// The same for a list, in which one whose data are damaged has its place: RegDanado.
    virtual void CargarListado(qint32 CSCO, Registro &registro) = 0;
    /// Mark of what is stored of a declarant, its returns apart: another one once any of it has
    /// changed, empty when it is not there. To be asked for right after loading and before saving.
    virtual QByteArray Huella(qint32 CSCO) = 0;
    /// Inserts (CSCO 0) or updates a RegDeclarante: 0 saved, 1 a new one's DNI exists already,
    /// 2 another declarant has that DNI, 3 no DNI or a code of too many figures. Texts are stored
    /// trimmed and in upper case; the counters of the record are ignored.
    virtual qint16 GuardarDeclarante(const Registro &registro) = 0;
    /// Throws ErrorDatos (Fallo::TieneDeclaraciones) while the declarant has returns.
    virtual void BorrarDeclarante(qint32 CSCO) = 0;
    /// First broken rule (1 to 12) of a RegValidacion, 0 when valid. Needs no database.
    virtual qint16 ValidarDatosDeclarante(const Registro &datos) = 0;
    /// Key stored under a tax identifier, 0 when there is none.
    virtual qint32 ObtenerCodigoDeclarante(const QString &DNI) = 0;
    /// Findings on a RegDeclarante read from a file: no row when it can be accepted, else one row
    /// (text) a finding, in the given language. The lookup database is needed.
    virtual Filas ValidarDatosImportar(const Registro &registro, qint16 idioma) = 0;
    /// Checks the declarants `desde` to before `hasta` (from 0) of a set as ValidarDatosImportar
    /// does and stores the valid ones, in their order and in one transaction, without counting
    /// them as recent. One result each; fewer only with Existentes::Detenerse. Needs both
    /// databases.
    virtual QList<ResultadoConjunto> GuardarConjunto(const ConjuntoDeclarantes &conjunto,
                                                     qsizetype desde, qsizetype hasta,
                                                     Existentes existentes, qint16 idioma)
        = 0;
    /// FilaDeclarante rows (RegDanado for damaged ones, in front) and their number; `orden` 1 by
    /// DNI, 2 by name. Needs both databases.
    virtual qint32 dameResultado(Filas &filas, quint8 orden, qint16 idioma) = 0;
    /// RegDeclarante rows (or RegDanado) of every declarant, in the same orders.
    virtual qint32 dameResultadoExportar(Filas &filas, quint8 orden) = 0;
    /// The same rows one after the other, none of them kept, until `visitar` returns false; `orden`
    /// 0: as they are stored, which is the fastest.
    virtual void RecorrerExportar(quint8 orden,
                                  const std::function<bool(const Registro &)> &visitar)
        = 0;
    /// What lists show of every declarant, as they are stored and none of them kept, until
    /// `visitar` returns false: of a RegDeclarante the key, DNI, names, the province's number and
    /// both counters, nothing else (or RegDanado).
    virtual void RecorrerLista(const std::function<bool(const Registro &)> &visitar) = 0;
    /// FilaReciente rows: up to four, the last saved first; damaged ones are left out.
    virtual void ObtenerUltimosDeclarantes(Filas &filas) = 0;
    /// Fila430 rows of a declarant's 430 returns of a year, by month; false when there is none.
    virtual bool ObtListDecl430(Filas &filas, qint16 ejercicio, qint32 CSCO) = 0;
};

/// Returns of models 430 and 480.
class cDeclaracion : public servicio::Objeto
{
public:
    static constexpr QStringView ID = u"SvrOstr.cDeclaracion";

    virtual void mdbname(const QString &ruta) = 0; ///< model database

    /// FilaDeclaracion rows of a declarant, oldest first, and their number.
    virtual qint32 dameResultado(Filas &filas, qint32 CSCO) = 0;
    /// Whether a RegCabecera (first seven elements) lies within its bounds.
    virtual bool EjerPerValidos(const Registro &cabecera) = 0;
    /// Fills a RegUltima for the declarant in its element 0 and the return's key; false when the
    /// declarant has none. The latest is the highest exercise and period, a 480 after its December;
    /// one that is damaged counts as not there.
    virtual bool ObtenerUltimaDeclaracion(Registro &cabecera, qint32 &CSDE) = 0;
    /// A RegCabecera: 1, 2, 3 empty exercise, period, model; 4 out of bounds; 5 stored already; 0
    /// valid.
    virtual qint16 ValidarDatosComunes(const Registro &cabecera) = 0;
    virtual void Cargar430(qint32 &CSDE, Registro &figuras) = 0; ///< Reg430
    virtual void Cargar480(qint32 &CSDE, Registro &figuras) = 0; ///< Reg480
    /// Mark of what is stored of a return, header and figures, as cDeclarante::Huella is of a
    /// declarant.
    virtual QByteArray Huella(qint32 CSDE) = 0;
    /// A RegValidar430: 1 rectification marked and its base 0, 2 its quota 0, else 0. No database.
    virtual qint16 ValidarDatos430(const Registro &datos) = 0;
    /// A RegValidar480: 2 when box 70 is not 73 + 76, else 0. No database.
    virtual qint16 ValidarDatos480(const Registro &datos) = 0;
    /// Saves header and figures in one transaction: the return's key, or 0 when it was refused
    /// (another return of that declarant, exercise, period and model is stored already; the record
    /// is malformed; its header is not the stored return's, or not its model's: a 430 has
    /// periodicity and typology 1, a 480 has 2 and period 12). SinDeclarante, SinDeclaracion: it is
    /// not stored.
    virtual qint32 Guardar430(const Registro &datos) = 0;
    virtual qint32 Guardar480(const Registro &datos) = 0;
    /// Saves a set of records of Guardar430 and Guardar480, of both models, in one transaction, in
    /// their order and without counting their declarants as recent: one row (the key) a record, 0
    /// where it was refused or its declarant or return is not stored. With `todoONada` nothing is
    /// stored unless all are, and then every key is 0.
    virtual Registro GuardarConjunto(const Filas &registros, bool todoONada) = 0;
    /// One FilaBuscada a RegBuscada, all of them as of one moment.
    virtual void Buscar(const Filas &buscadas, Filas &filas) = 0;
    /// FilaPendiente of every declarant, by name, one after the other and none of them kept, until
    /// `visitar` returns false.
    virtual void RecorrerPendientes(qint16 ejercicio, const QString &modelo, quint8 periodo,
                                    const std::function<bool(const Registro &)> &visitar)
        = 0;
    /// Deletes the figures; the deletion holds once BorrarDeclaracion has followed on this object,
    /// and is undone when the object is released before.
    virtual void BorrarDatosNoComunes(qint32 CSDE, const QString &modelo) = 0;
    virtual void BorrarDeclaracion(qint32 CSDE) = 0;
};

/// Preparation of the databases at start-up and after a restore.
class cTraspaso : public servicio::Objeto
{
public:
    static constexpr QStringView ID = u"SvrOstr.cTraspaso";

    virtual void mdbmod(const QString &ruta) = 0; ///< model database
    virtual void mdbPath(const QString &carpeta) = 0; ///< tables folder
    /// Creates what is missing and brings older files up to date; true when the program must end.
    /// Throws ErrorDatos naming the first file that cannot be used; such a file is left untouched
    /// and the other one is prepared all the same.
    virtual bool Traspaso() = 0;
    /// Looks through the whole model database, once a process; it is done before the first write
    /// too. Throws ErrorDatos.
    virtual void Comprobar() = 0;
};

} // namespace SvrOstr

/// The queries of the pick lists, part of the contract: [0] Castilian, [1] Basque.
namespace ListasSql {
inline constexpr QStringView Vias[] = {
    u"Select T07_CODIGO, T07_CAS From T07_SIGLASVIA ORDER BY T07_CAS",
    u"Select T07_CODIGO, T07_EUS From T07_SIGLASVIA ORDER BY T07_EUS",
};
inline constexpr QStringView Provincias[] = {
    u"Select T05_PRO_ID, T05_PRO_CAS From T05_PROVINCIAS ORDER BY T05_PRO_CAS",
    u"Select T05_PRO_ID, T05_PRO_EUS From T05_PROVINCIAS ORDER BY T05_PRO_EUS",
};
inline constexpr QStringView Municipios[] = {
    u"Select T06_CODMUN, T06_NOMMUN From T06_MUNICIPIOS ORDER BY T06_NOMMUN",
    u"Select T06_CODMUN, T06_NOMMUN From T06_MUNICIPIOS ORDER BY T06_NOMMUN",
};
} // namespace ListasSql
