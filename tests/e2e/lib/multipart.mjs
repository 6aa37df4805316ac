// A multipart body as bytes, with a file name that no browser would send.
const boundary = `${'-'.repeat(50)}XbX`; // as long as a browser's
export const contentType = `multipart/form-data; boundary=${boundary}`;

export const opening = (control, name) => Buffer.from(`--${boundary}\r\nContent-Disposition: ` +
  `form-data; name="${control}"; filename="${name}"\r\nContent-Type: text/plain\r\n\r\n`);
export const closing = Buffer.from(`\r\n--${boundary}--\r\n`);

export const multipart = (control, name, content) =>
  Buffer.concat([opening(control, name), Buffer.from(content), closing]);
