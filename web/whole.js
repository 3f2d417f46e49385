// Stands in index.html itself, before all that can be missing of it: says that not all of it has come.

addEventListener("DOMContentLoaded", () => document.getElementById("print") ?? document.body.append("La página ha llegado cortada: recárgala."));
