#include "voice/Nombres.h"

#include <array>

#include "game/Modos.h"
#include "voice/Palabras.h"

namespace juego {

namespace {

/// A box that takes a text or a choice: what it asks for.
struct NombreDeCampo {
    std::string_view Form;
    std::string_view Elemento;
    TextView Nombre;
};
constexpr auto kFields = std::to_array<NombreDeCampo>({
    {"frmNombre", "txtNombre", u"Nombre del jugador"},
    {"frmGuardar", "txtFecha", u"Fecha"},
    {"frmGuardar", "txtContraseña", u"Contraseña"},
    {"frmGuardar", "txtContrarep", u"Repite la contraseña"},
    {"frmReanudar", "lstLista", u"Partidas guardadas"},
    {"frmReanudar", "txtContraseña", u"Contraseña"},
    {"frmFecha", "txtFecha", u"Fecha"},
    {"frmDiploma", "Text1", u"Nombre"},
    {"frmDiploma", "Text2", u"Modo"},
    {"frmDiploma", "Text3", u"Zarpis"},
    {"frmDiploma", "Text4", u"Plenos"},
    {"frmDiploma", "Text5", u"Fecha"},
});

/// A value that stands beside its heading, or below it: said together.
struct ValorConTítulo {
    std::string_view Form;
    std::string_view Valor;
    std::string_view Título;
};
constexpr auto kValues = std::to_array<ValorConTítulo>({
    {"frmReanudar", "Label1", "Label5"},
    {"frmReanudar", "Label2", "Label6"},
    {"frmReanudar", "Label17", "Label16"},
    {"frmReanudar", "Label9", "Label4"},
    {"frmReanudar", "Label3", "Label7"},
    {"frmReanudar", "Label11", "Label10"},
    {"frmReanudar", "Label13", "Label12"},
    {"frmReanudar", "Label15", "Label14"},
    {"frmPuntos", "Label4", "Label3"},
});

void Callar(std::initializer_list<Control*> controls) {
    for (Control* control : controls) control->SpokenName = [] { return Text(); };
}

Text ConTítulo(const Label& title, const Label& value) {
    Text said = title.Caption;
    if (!said.empty() && said.back() == u':') said.pop_back();
    return said + u": " + value.Caption;
}

Text Tecla(const Label& key) {
    return u"Tecla " + key.Caption + (key.BorderStyle == 1 ? u", usada" : u"");
}

Text Comodín(const Zarpi& z, int index) {
    if (index > 1) return u"Comodín " + Decimal(index);
    return u"Comodín 1, " + Text(z.fComodín ? u"preparado" : u"activo");
}

}  // namespace

void NombrarVentana(Zarpi& z) {
    z.SpokenTitle = u"Juego de Zarpi";
    for (Label& box : z.lblLetra) box.SpokenName = [&z, i = box.Index] { return voz::Casilla(z, i); };
    for (Label& key : z.lblTecla) key.SpokenName = [&key] { return Tecla(key); };
    for (Label& box : z.lblComodín) box.SpokenName = [&z, i = box.Index] { return Comodín(z, i); };
    for (Label& box : z.lblError) Callar({&box});
    // What stands in several boxes and titles on the screen is said in one place.
    Callar({&z.Label2, &z.Label6, &z.lblNivel, &z.Label3, &z.Label7, &z.Label8, &z.Label10, &z.lblMensajeTiem,
            &z.lblTapa1, &z.lblTapa2, &z.lblTeclado});
    z.lblPalabra.SpokenName = [&z] { return z.lblPalabra.Caption.empty() ? Text() : voz::Palabra(z) + u"."; };
    z.Label4.SpokenName = [&z] { return voz::Fallos(z); };
    z.lblPuntos.SpokenName = [&z] { return u"Zarpis: " + z.lblPuntos.Caption; };
    z.lblPlenos.SpokenName = [&z] { return u"Plenos: " + z.lblPlenos.Caption; };
    z.lblModo.SpokenName = [&z] { return u"Modo: " + z.lblModo.Caption; };
    z.lblTiempo.SpokenName = [&z] { return voz::Tiempo(z); };
    z.lblNombre.SpokenName = [&z] { return z.lblNombre.Caption.empty() ? Text() : u"Jugador: " + z.lblNombre.Caption; };
    for (Label* line : {&z.lblComentario, &z.lblComentAngus, &z.lblComentCaída}) {
        line->SpokenName = [&z, line] { return voz::LíneaDeZarpi(z, line->Caption); };
    }
    z.cmdMostrar.SpokenName = [] { return Text(u"Mostrar el teclado de la pantalla"); };
    z.cmdOcultar.SpokenName = [] { return Text(u"Ocultar el teclado de la pantalla"); };
    z.cmdDorvanquil.SpokenName = [&z] { return u"Página web: " + z.cmdDorvanquil.Caption; };
}

void NombrarDiálogo(Form& form) {
    for (const NombreDeCampo& field : kFields) {
        if (field.Form != form.Name) continue;
        form.Find(field.Elemento)->SpokenName = [&field] { return Text(field.Nombre); };
    }
    for (const ValorConTítulo& value : kValues) {
        if (value.Form != form.Name) continue;
        auto& title = static_cast<Label&>(*form.Find(value.Título));
        auto& box = static_cast<Label&>(*form.Find(value.Valor));
        box.SpokenName = [&title, &box] { return ConTítulo(title, box); };
        Callar({&title});
    }
    for (const std::string_view name : {"Picture2", "Picture3"}) {
        if (form.Name != "frmDiploma") break;
        // An open curtain has nothing more to do.
        const bool isLeft = name == "Picture2";
        form.Find(name)->SpokenName = [&form, isLeft] {
            return !form.KeyPreview ? Text() : isLeft ? u"Cortina izquierda" : u"Cortina derecha";
        };
    }
    for (Control* control : form.Controls()) {
        if (control->Name != "picPubli1") continue;
        control->SpokenName = [control] { return static_cast<const PictureBox&>(*control).ToolTipText; };
    }
}

}  // namespace juego
