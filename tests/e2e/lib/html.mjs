// A page as a browser would read it.
import { parse } from 'parse5';

function* elements(node) {
  for (const child of node.childNodes ?? []) {
    if (child.tagName) yield child;
    yield* elements(child);
  }
}

const attribute = (element, name) => element.attrs.find((a) => a.name === name)?.value;

const forms = (html) => [...elements(parse(html))].filter(({ tagName }) => tagName === 'form');

// The values of a page's first form by the names of its controls.
export function formValues(html) {
  const inputs = [...elements(forms(html)[0])].filter((element) => attribute(element, 'name') !== undefined);
  return Object.fromEntries(
    inputs.map((input) => [attribute(input, 'name'), attribute(input, 'value')]));
}

// The kinds of elements in a page's forms.
export const formTags = (html) => new Set(
  forms(html).flatMap((form) => [...elements(form)].map(({ tagName }) => tagName)));
