/* Measures the alarm message while it is typed; the device does the counting. */
addEventListener('DOMContentLoaded', () => {
  const message = document.getElementById('message');
  const places = ['septets', 'messages', 'refused'].map((id) => document.getElementById(id));

  message.addEventListener('input', async () => {
    const text = message.value;
    const query = new URLSearchParams({ format: 'json', message: text });
    const size = await (await fetch(`mobile?${query}`)).json();
    if (text !== message.value) return;
    for (const place of places) place.textContent = size[place.id] || (place.id === 'refused' ? 'none' : 0);
  });
});
