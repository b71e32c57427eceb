"""The families of attacks. Each is a list of kinds: (name, function of a case)."""
from . import faults, files, kills, names, pictures

FAMILIES = {"pictures": pictures.KINDS, "files": files.KINDS, "kills": kills.KINDS, "names": names.KINDS,
            "faults": faults.KINDS}
