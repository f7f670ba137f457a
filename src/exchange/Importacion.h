#pragma once

#include "dataservice/ConjuntoDeclarantes.h"
#include "exchange/FicheroErrores.h"

#include <QSet>

#include <functional>
#include <optional>
#include <vector>

class QIODevice;

/// Reads the declarants of an exchange file and stores those that are right, in the order of the
/// file. What it has counted is on disk.
class Importacion
{
public:
    /// What the user answers about a declarant that exists.
    enum class Respuesta { Si, No, SiATodos, NoATodos };

    struct Cuenta
    {
        qint64 lineas = 0; ///< the sum of the others
        qint64 importados = 0;
        qint64 sustituidos = 0;
        qint64 ignorados = 0;
        qint64 incorrectos = 0;
    };

    /// With Existentes::Detenerse each existing declarant is asked about; with Examinar nothing is
    /// stored nor written, and `ignorados` are those that exist.
    Importacion(const QString &fichero, Existentes existentes);

    std::function<Respuesta(const QString &dni)> preguntar;
    /// Called every few lines with the number of the line; false ends the import after it.
    std::function<bool(qint64 linea)> seguir;

    /// Throws ErrorDatos; what was counted by then is stored all the same.
    void ejecutar();

    const Cuenta &cuenta() const { return m_cuenta; }
    bool detenida() const { return m_detenida; }

private:
    struct Linea
    {
        qint64 numero;
        QString motivo; ///< why it holds no declarant; empty: the next one of m_conjunto
    };

    void importarLineas(QIODevice &fichero);
    void tomarLinea(qint64 numero, QByteArrayView linea);
    void vaciar();
    void guardarSeguidos();
    void preguntarPorElPrimero();
    QList<ResultadoConjunto> guardar(qsizetype hasta, Existentes existentes);
    void anotarDeclarante(const ResultadoConjunto &resultado);
    void anotarIncorrecta(const QStringList &motivos);
    void siguienteLinea();
    bool repetido();
    QString dni() const;
    bool continuar(qint64 linea);
    void terminarErrores();

    QString m_fichero;
    Existentes m_existentes;
    std::vector<Linea> m_lineas; ///< read, but not yet all done
    std::size_t m_hechas = 0; ///< of them
    ConjuntoDeclarantes m_conjunto; ///< their declarants
    qsizetype m_guardados = 0; ///< of those
    std::optional<FicheroErrores> m_errores;
    QSet<quint64> m_vistos; ///< identifiers met while only looking
    Cuenta m_cuenta;
    bool m_detenida = false;
};

/// Why a file cannot be imported at all; empty when it can be tried.
QString motivoNoImportable(const QString &fichero);

/// What the user is told at the end.
QString mensajeFinal(const Importacion::Cuenta &cuenta);
