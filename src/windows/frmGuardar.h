#pragma once

#include <functional>

#include "game/Zarpi.h"
#include "records/PartidasGuardadas.h"

namespace juego {

/// The indexes of the words drawn last, which a save keeps and a resume brings back.
struct ÍndicesPalabras {
    Integer& Aleator;
    Integer& Alea;
};

/// Saves the game in play under a password, and so ends it.
class frmGuardar : public Form {
public:
    /// `terminar` ends the game once it is stored.
    frmGuardar(Zarpi& zarpi, Forms& forms, Dialogs& dialogs, Files& files, const Clock& clock, ÍndicesPalabras índices,
               std::function<void()> terminar);

    CommandButton cmdGuardar{*this, "cmdGuardar", {510, 2490, 1425, 405}, DefaultButton(u"GUARDAR", 3)};
    CommandButton cmdCancelar{*this, "cmdCancelar", {2670, 2490, 1425, 405}, CancelButton(4)};
    TextBox txtFecha{*this, "txtFecha", {1860, 210, 2115, 465}, {.Locked = true, .Enabled = false}};
    TextBox txtContraseña{
        *this, "txtContraseña", {1860, 960, 2115, 420}, {.MaxLength = 10, .Password = true, .TabIndex = 1}};
    TextBox txtContrarep{
        *this, "txtContrarep", {1860, 1650, 2115, 420}, {.MaxLength = 10, .Password = true, .TabIndex = 2}};
    Label Label1{*this, "Label1", {630, 330, 1125, 225}, FieldName(u"Fecha:")};
    Label Label2{*this, "Label2", {300, 1050, 1455, 255}, FieldName(u"Contraseña:")};
    Label Label3{*this, "Label3", {300, 1590, 1455, 555}, FieldName(u"Repite la contraseña:")};
    Shape shpAceptar{*this, "shpAceptar", {420, 2430, 1605, 525}, ButtonPlate()};
    Shape shpCancelar{*this, "shpCancelar", {2580, 2430, 1605, 525}, ButtonPlate()};

private:
    void cmdGuardar_Click();
    bool ContraseñaVálida();
    void Rechazar(TextView reason, TextBox& box);
    bool Almacenar();
    PartidaGuardada Partida() const;

    Zarpi& z;
    Forms& forms;
    Dialogs& dialogs;
    Files& files;
    const Clock& clock;
    ÍndicesPalabras índices;
    std::function<void()> terminar;
};

}  // namespace juego
