// Shows how far an upload is. Without this script the form is sent as any other.
document.addEventListener('submit', (event) => {
  const form = event.target;
  const bar = form.querySelector('progress');
  if (!bar) return;
  event.preventDefault();
  const told = form.querySelector('output');
  const [send, cancel] = form.querySelectorAll('button');
  const request = new XMLHttpRequest();
  const busy = (state) => {
    bar.hidden = !state;
    send.disabled = state;
    cancel.hidden = !state;
  };
  const end = (text) => {
    busy(false);
    told.textContent = text;
  };
  request.upload.onprogress = ({ loaded, total }) => {
    bar.value = loaded / total;
    told.textContent = loaded < total ? `${Math.floor(100 * loaded / total)} %` : 'Storing …';
  };
  request.onload = () => {
    if (request.status === 200) location.assign(request.responseURL);
    else end(`The device refused the file (${request.status}).`);
  };
  request.onerror = () => end('The upload broke off. Nothing was stored.');
  request.onabort = () => end('The upload was cancelled. Nothing was stored.');
  cancel.onclick = () => request.abort();
  bar.parentElement.hidden = false;
  bar.removeAttribute('value');
  told.textContent = '';
  busy(true);
  request.open('POST', form.action);
  request.send(new FormData(form));
});
