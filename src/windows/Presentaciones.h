#pragma once

#include <array>

#include "game/Zarpi.h"

namespace juego {

/// What the briefing of a level says: the hero's greeting in the bubble, and what the level is like.
struct Presentación {
    Integer Modo;
    Integer Nivel;
    TextView Saludo;
    TextView Texto;
};

inline constexpr std::array<Presentación, 21> Presentaciones = {{
    {1, 1, u" ¡Hola, soy Zarpi!  ¿Cómo estás?",
     u"Estas primeras 5 palabras de que consta el Nivel 1 tienen la particularidad de ofrecer la "
     u"primera y última letras; o sea, que son facilitas. Si consigues acertar todas, pasarás al Nivel "
     u"2. ¡Ánimo!"},
    {1, 2, u"¿Te gusta este juego? Seguro que sí.",
     u"Muy bien. Ahora tendrás que acertar otras 5 palabras si quieres superar el Nivel 2, pero sólo "
     u"dispondrás de la primera letra de cada palabra. Consigue muchos plenos y a por el Nivel 3."},
    {1, 3, u"Procura conseguir muchos plenos.",
     u"¡Estupendo! Has acertado las 10 primeras palabras. Ahora tendrás que acertar otras 5 palabras, "
     u"pero sin ninguna letra de pista, para entrar en el nivel de Inglés y lograr un comodín extra. "
     u"¡Buena suerte!"},
    {1, 4, u"Do you speak English, my good friend?",
     u"¡Enhorabuena! Ya estás en el Nivel 4. ¿Tienes conocimientos de inglés? Seguro que sí, porque "
     u"ahora tendrás que acertar otras 15 palabras, pero en inglés. Sé que lo conseguirás. Come on!"},
    {1, 5, u"To be or not to be? This is the question.",
     u"¡Extraordinario! Ya veo que te defiendes en inglés tan bien como en castellano; si no, no "
     u"hubieras llegado al Nivel 5. Ten paciencia y te plantarás en el último nivel. Come on, brave, "
     u"you're nearly there!"},
    {1, 6, u"You must obtain the PRIZE, champion!",
     u"Good for you, you're magnificent! Ya llevas nada menos que 25 palabras acertadas, estás a punto "
     u"de entrar en el Cuadro de Honor y de conseguir el PREMIO. Ve con cuidado. If you really try, "
     u"you will succeed."},
    {2, 1, u"Hello, my friend! My name's Zarpi.",
     u"Empiezas con el inglés, ¿eh? Ya sabes que las 5 palabras del Nivel 1 ofrecen la primera y "
     u"última letras. Si consigues acertar todas, pasarás al Nivel 2. Seguro que lo conseguirás. "
     u"¡Adelante!"},
    {2, 2, u"Do you like this game? It's enjoyable.",
     u"Good for you! Ahora tienes que superar el Nivel 2. Ya sabes que sólo dispones de la primera "
     u"letra de cada palabra. Aprovecha bien los comodines y consigue muchos plenos. Are you ready?"},
    {2, 3, u" You play very well.  Enjoy yourself!",
     u"Fantastic, my good friend! Ya estás en el Nivel 3. En este nivel no tienes ninguna letra de "
     u"pista; ya sabes que si lo superas obtendrás un comodín extra y llegarás al nivel de Castellano. "
     u"You can do it!"},
    {2, 4, u"Vas estupendamente. Ahora, el castellano.",
     u"¡Enhorabuena! Ya estás en el Nivel 4, el de Castellano, y con comodín extra incluido. Este "
     u"nivel no debería ofrecer ninguna dificultad para ti. Tómatelo con tranquilidad y llegarás al "
     u"Nivel 5."},
    {2, 5, u"¡Fantástico! Vamos, que llegas al Nivel 6.",
     u"¡Excelente, estupendo! Te defiendes en el nivel de Castellano tan bien como en el de Inglés. Ya "
     u"estás en el Nivel 5 y has acertado 20 palabras. Sigue así y entrarás en el último nivel. ¡A por "
     u"todas!"},
    {2, 6, u"¡Estás a punto de conseguir el PREMIO!",
     u"¡Extraordinario, magnífico! Ya llevas nada menos que 25 palabras acertadas, estás en el Nivel 6 "
     u"y a punto de entrar en el Cuadro de Honor. Ten cuidado en la recta final y consigue el PREMIO. "
     u"¡Adelante!"},
    {3, 1, u"¡Hola, soy Zarpi! ¿Listo/a para jugar?",
     u"Has elegido el modo Castellano. Muy bien. Este primer nivel consta de 10 palabras que tienen la "
     u"particularidad de ofrecer la primera y última letras. Con un poquito de paciencia llegarás al "
     u"Nivel 2. ¡A por todas!"},
    {3, 2, u"¿Te gusta este juego? Vas muy bien.",
     u"¡Magnífico! Ya estás en el Nivel 2. Este nivel te ofrece la primera letra de cada palabra. Ya "
     u"sabes que al llegar a la palabra 16 obtendrás un comodín extra. Consigue muchos plenos y a por "
     u"el Nivel 3."},
    {3, 3, u"Ten paciencia y conseguirás el PREMIO.",
     u"¡Enhorabuena! ¡Genial! Ya llevas 20 palabras acertadas y estás en el último nivel. Ahora no hay "
     u"ninguna letra de pista. Ve con cuidado y entrarás en el Cuadro de Honor. ¡A por el PREMIO!"},
    {4, 1, u"Hello, my name's Zarpi. Pleased to meet you.",
     u"Has elegido el modo de Inglés. Muy bien. Este nivel consta de 10 palabras en las que tienes la "
     u"primera y última letras como pista. Con un poquito de paciencia llegarás al Nivel 2. You guess "
     u"many word!"},
    {4, 2, u"Are you happy in your new game, colleague?",
     u"Congratulations on your good job! Ya estás en el Nivel 2. Te defiendes bien en inglés, ¿eh? "
     u"Ahora sólo se te ofrecerá la primera letra de cada palabra. Ya sabes que en la 16 obtendrás un "
     u"comodín extra."},
    {4, 3, u"A fine game, champion! There's a PRIZE for you.",
     u"How wonderful, you are in the three level! En las 10 palabras restantes no se te ofrecerá "
     u"ninguna letra de pista. Ve con mucho cuidado y entrarás en el Cuadro de Honor. You will win the "
     u"PRIZE, champion!"},
    {5, 1, u"¡Hola, soy Zarpi! Encantado de saludarte.",
     u"Este modo te ofrecerá una palabra en castellano y otra en inglés, alternando hasta el final. En "
     u"este nivel dispondrás de la primera y última letras de cada palabra. ¡Ánimo y a por el Nivel 2!"},
    {5, 2, u"¿Te gusta este juego? Seguro que sí.",
     u"¡Fantástico, has llegado al Nivel 2! Ahora sólo dispondrás de la primera letra de cada palabra. "
     u"Intenta conseguir todos los plenos que puedas. Ya sabes que en la palabra 16 obtendrás un "
     u"comodín extra."},
    {5, 3, u"A few more words and you will win the PRIZE!",
     u"You have obtained to arrive to the three level, champion! Congratulations! Ahora no dispondrás "
     u"de ninguna letra de pista. Ten paciencia y entrarás en el Cuadro de Honor. A conseguir el "
     u"PREMIO. ¡Ánimo!"},
}};

}  // namespace juego
