#pragma once

#include "campaign/ColumnasCsv.h"
#include "dataservice/SvrOstr.h"
#include "declarants/cDecResumen.h"

#include <QHash>
#include <QList>
#include <QString>

#include <functional>

/// A row of a file of returns, and what is to become of it.
struct FilaDeclaraciones
{
    enum Estado {
        Nueva,
        Sustituye, ///< a return that is stored already
        Rechazada,
        Guardada,
        NoGuardada, ///< another copy of the program was faster
    };

    qint64 linea = 0; ///< of the file, its heading being 1
    QStringList campos; ///< as they stand in the file
    QString dni;
    CabeceraListada cabecera;
    double importe = 0; ///< cents, as computed
    double anterior = 0; ///< cents, of the return that is replaced
    QByteArray huella; ///< and its mark, so that another copy's change is noticed
    Estado estado = Nueva;
    QString columna; ///< the heading of the one at fault
    QString motivo; ///< why it was refused, in the language of the reading
    bool marcada = true; ///< the user wants it stored
    Registro registro; ///< what Guardar430 or Guardar480 takes

    /// The reason with the column at fault in front of it.
    QString textoMotivo() const;
    /// Whether there is a stored return in its place.
    bool sustituye() const { return registro.value(RegGuardar::CSDE).toInt() != 0; }
};

/// Returns read from a table, one a row: every row goes through the same records and rules as a
/// return that is typed, all of them before anything is stored.
class cImportarDeclaraciones
{
public:
    /// Called every few rows with their number; false ends the work there.
    using Seguir = std::function<bool(qint64)>;

    /// Reads a file: empty, or why it cannot be used, in the session's language. One that is ended
    /// by `seguir` leaves no rows. Throws ErrorDatos.
    QString leer(const QString &ruta, const Seguir &seguir);
    const QList<FilaDeclaraciones> &filas() const { return m_filas; }
    /// Chooses a row to be stored, or not.
    void marcar(qsizetype fila, bool marcada) { m_filas[fila].marcada = marcada; }
    qsizetype cuantas(FilaDeclaraciones::Estado estado) const;
    qsizetype porGuardar() const;

    /// Stores the rows chosen, each return whole; with `todoONada` all of them or none. Every row
    /// told as stored is on disk. False when `seguir` ended it, or with `todoONada` nothing could
    /// be stored. Throws ErrorDatos; the rows stored before are told.
    bool guardar(bool todoONada, const Seguir &seguir);

    /// The rows refused as a file of the same form, with the reason in a column of its own.
    QByteArray csvRechazadas() const;

private:
    void leerFila(QByteArrayView linea, qint64 numero);
    void leerClave(FilaDeclaraciones &fila);
    void leerBuscadas(qsizetype desde);
    void calcular(FilaDeclaraciones &fila, const Registro &hallada,
                  SvrOstr::cDeclaracion &servicio);
    void calcular430(FilaDeclaraciones &fila);
    void calcular480(FilaDeclaraciones &fila);
    QString campo(const FilaDeclaraciones &fila, ColumnaCsv::Que que) const;
    void rechazar(FilaDeclaraciones &fila, ColumnaCsv::Que que, const QString &motivo) const;
    void rechazarEn(FilaDeclaraciones &fila, qsizetype lugar, const QString &motivo) const;
    void rechazarRepetidas(FilaDeclaraciones &fila);
    float tipo(qint16 ejercicio, quint8 mes);
    const Registro &tipos(qint16 ejercicio);
    void apartarCambiadas(QList<qsizetype> &cuales);
    bool guardarTanda(const QList<qsizetype> &cuales, bool todoONada);

    EncabezadoCsv m_encabezado;
    QList<FilaDeclaraciones> m_filas;
    QHash<QString, qsizetype> m_vistas; ///< the row of each return in the file
    QHash<int, float> m_tipos; ///< by exercise and month
    QHash<int, Registro> m_tiposAnuales;
};
