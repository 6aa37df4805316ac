import { parse } from 'parse5';

function* elements(node) {
  const attributes = (node.attrs ?? []).map(({ name, value }) => [name, value]);
  yield { node, ...Object.fromEntries(attributes) };
  for (const child of node.childNodes ?? []) yield* elements(child);
}

// The values of a page's first form by the names of its controls, as a browser would read them.
export function formValues(html) {
  const { node: form } = [...elements(parse(html))].find(({ node }) => node.tagName === 'form');
  const controls = [...elements(form)].filter(({ name }) => name !== undefined);
  return Object.fromEntries(controls.map(({ name, value }) => [name, value]));
}
