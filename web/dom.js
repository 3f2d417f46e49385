// What the modules of the page make nodes with.

/** A new node with these properties, the last child of `parent` if there is one. */
export function make(tag, parent, properties = {}) {
  const node = Object.assign(document.createElement(tag), properties);
  parent?.append(node);
  return node;
}

/** Sets an attribute, or takes it away where the value is null. */
export function setAttribute(node, name, value) {
  if (value === null) node.removeAttribute(name);
  else node.setAttribute(name, value);
}
