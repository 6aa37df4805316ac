#include "shared/first_values.h"

#include <string.h>

const item_value first_values[] = {
    {"owner", "Network team"},
    {"place", "Rack 4, below the patch panel"},
    {"remark", ""},
    {"bootdevice", "/dev/mtd0"},
    {"phy", "0"},
    {"hostname", "edge-4"},
    {"location", "Rack 4, below the patch panel"},
    {"contact", "Network team"},
    {"timeserver", "time.example.net"},
    {"passphrase", "change-me"},
    {"mode", "0"},
    {"address", "192.0.2.1"},
    {"netmask", "255.255.255.0"},
    {"route", "198.51.100.0/24"},
    {"mac", "02:00:5E:10:00:01"},
    {"mtu", "1500"},
    {"pool", "100-199"},
    {"zone", "lan"},
    {"dns", "0"},
    {"netnotes", "Uplink is the left port."},
    {"ipv6", "1"},
    {"multicast", "0"},
    {"upnp", "0"},
    {"vpnpeer", "vpn.example.net"},
    {"vpncipher", "AES-256-CBC"},
    {"vpndigest", "SHA256"},
    {"vpncert", ""},
    {"restart_time", "03:30"},
    {"restart_days", "1"},
    {"backup_time", "22:00"},
    {"backup_days", "62"},
    {"country", "de"},
    {"operator", "auto"},
    {"message", "Uplink lost."},
    {"routes", "198.51.100.0/24 192.0.2.254 Branch office\n203.0.113.0/25 192.0.2.253 Laboratory"},
    {NULL, NULL},
};

const char* first_value(const char* name) {
  const item_value* item = first_values;
  while (item->name != NULL && strcmp(item->name, name) != 0) item++;
  return item->value;
}
