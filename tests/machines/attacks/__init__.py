"""The families of attacks. Each is a list of kinds: (name, function of a case)."""
from . import faults, files, kills, names, originals, pictures

FAMILIES = {"pictures": pictures.KINDS, "files": files.KINDS, "kills": kills.KINDS, "names": names.KINDS,
            "originals": originals.KINDS, "faults": faults.KINDS}
