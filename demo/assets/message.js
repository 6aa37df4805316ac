/* Measures the alarm message while it is typed; the device does the counting. */
addEventListener('DOMContentLoaded', () => {
  const message = document.getElementById('message');
  const places = ['septets', 'messages', 'refused'].map((id) => document.getElementById(id));

  message.addEventListener('input', async () => {
    const text = message.value;
    // A line end counts like a blank, and some servers refuse one in a URL.
    const query = new URLSearchParams({ format: 'json', message: text.replaceAll('\n', ' ') });
    const size = await (await fetch(`mobile?${query}`)).json();
    if (text !== message.value) return;
    for (const place of places) place.textContent = size[place.id] || (place.id === 'refused' ? 'none' : 0);
  });
});
