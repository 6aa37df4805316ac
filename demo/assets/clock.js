/* The browser's clock beside the device's, which print_timeline() asks for. */
function fl_time() {
  return `, ${new Date().toLocaleTimeString('en-GB')} in this browser`;
}
