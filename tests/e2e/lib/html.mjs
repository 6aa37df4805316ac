// A page as a browser would read it.
import { parse } from 'parse5';

function* elements(node) {
  for (const child of node.childNodes ?? []) {
    if (child.tagName) yield child;
    yield* elements(child);
  }
}

const attribute = (element, name) => element.attrs.find((a) => a.name === name)?.value;

// The values of a page's first form by the names of its controls.
export function formValues(html) {
  const form = [...elements(parse(html))].find((element) => element.tagName === 'form');
  const inputs = [...elements(form)].filter((element) => attribute(element, 'name') !== undefined);
  return Object.fromEntries(
    inputs.map((input) => [attribute(input, 'name'), attribute(input, 'value')]));
}

export function tagNames(html) {
  return new Set([...elements(parse(html))].map((element) => element.tagName));
}
