#pragma once

#include "dataservice/Dialogos.h"

/// The data service's dialogue in windows and message boxes, in the session's language.
class DialogosVentana : public Dialogos
{
public:
    void abrirDireccion(const QString &direccion, quintptr padre) override;
    void informarAsistencia(const QString &direccion, quintptr padre) override;
    void copiaHecha(const QString &ruta, qint64 bytes, const QDateTime &fecha,
                    quintptr padre) override;
    QString elegirCopia(const QString &propuesta, const QString &filtro, quintptr padre) override;
    bool confirmarRestauracion(const std::optional<ResumenBase> &actual, const ResumenBase &copia,
                               quintptr padre) override;
    void restaurada(const QString &copia, const QString &anteriores, quintptr padre) override;
    void fallo(Trabajo trabajo, const ErrorDatos &error, quintptr padre) override;
};
