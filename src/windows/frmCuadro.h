#pragma once

#include "game/Zarpi.h"
#include "records/Registros.h"
#include "windows/Filas.h"

namespace juego {

/// The honour board of the mode in `ModoHonor`: the ten best games won in it.
class frmCuadro : public Form {
public:
    frmCuadro(Zarpi& zarpi, Forms& forms, Files& files, Printer& printer);

    CommandButton cmdAceptar{*this, "cmdAceptar", {2820, 2130, 1425, 405}, AcceptButton()};
    CommandButton cmdRestablecer{
        *this, "cmdRestablecer", {4680, 2130, 1485, 405, Hidden}, PlateButton(u"RESTABLECER", 2)};
    CommandButton cmdImprimir{*this, "cmdImprimir", {6600, 2130, 1425, 405}, PlateButton(u"IMPRIMIR", 3)};
    PictureBox Picture1{*this, "Picture1", {780, 270, 615, 960}, SmallZarpi()};
    PictureBox Picture2{*this, "Picture2", {9480, 240, 615, 960}, SmallZarpi()};
    Label Label1{*this, "Label1", {2580, 240, 5595, 525}, Heading(u"CUADRO DE HONOR", 18)};
    Label Label2{*this, "Label2", {3540, 930, 3705, 525}, Heading(u"", 18)};
    Label Label3{*this, "Label3", {780, 1650, 1425, 285}, filas::Cabecera(u"Zarpis")};
    Label Label4{*this, "Label4", {2520, 1650, 2205, 285}, filas::Cabecera(u"Nombre")};
    Label Label5{*this, "Label5", {5040, 1650, 1215, 285}, filas::Cabecera(u"Plenos")};
    Label Label6{*this, "Label6", {6570, 1650, 1635, 285}, filas::Cabecera(u"Tiempo")};
    Label Label7{*this, "Label7", {8520, 1650, 1575, 285}, filas::Cabecera(u"Fecha")};
    ControlArray<Label, 10> lblZarpis{*this, "lblZarpis", [](int k) { return filas::Celda(780, 1425, k); }};
    ControlArray<Label, 10> lblNombre{*this, "lblNombre", [](int k) { return filas::Celda(2520, 2205, k); }};
    ControlArray<Label, 10> lblPlenos{*this, "lblPlenos", [](int k) { return filas::Celda(5040, 1215, k); }};
    ControlArray<Label, 10> lblTiempo{*this, "lblTiempo", [](int k) { return filas::Celda(6570, 1635, k); }};
    ControlArray<Label, 10> lblFecha{*this, "lblFecha", [](int k) { return filas::Celda(8520, 1575, k); }};
    Shape shpAceptar{*this, "shpAceptar", {2730, 2070, 1605, 525}, ButtonPlate()};
    Shape shpRestablecer{*this, "shpRestablecer", {4590, 2070, 1665, 525, Hidden}, ButtonPlate()};
    Shape shpImprimir{*this, "shpImprimir", {6510, 2070, 1605, 525}, ButtonPlate()};

private:
    void Form_Load();
    bool LeerFilas();
    void cmdRestablecer_Click();
    const Par& Archivo() const { return ArchivosHonor.at(static_cast<std::size_t>(z.ModoHonor - 1)); }

    Zarpi& z;
    Forms& forms;
    Files& files;
};

}  // namespace juego
