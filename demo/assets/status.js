/* Keeps the table of interfaces up to date. */
const clock = () => new Date().toLocaleTimeString('en-GB');

addEventListener('DOMContentLoaded', () => {
  const body = document.querySelector('#interfaces tbody');
  const labels = [...document.querySelectorAll('#interfaces th')].map((head) => head.textContent);
  const age = document.getElementById('age');

  function row(cells) {
    const line = document.createElement('tr');
    Object.values(cells).forEach((text, column) => {
      const cell = line.insertCell();
      cell.dataset.label = labels[column];
      cell.textContent = text;
    });
    return line;
  }

  async function update() {
    if (document.hidden) return;
    try {
      const { interfaces } = await (await fetch('status?format=json')).json();
      body.replaceChildren(...interfaces.map(row));
      age.textContent = `Updated at ${clock()}.`;
    } catch {
      age.textContent = `The device did not answer at ${clock()}.`;
    }
  }

  age.textContent = 'Updated every five seconds.';
  setInterval(update, 5000);
});
