#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whether the list of parts in the Windows package tells the truth: it names each file with its
checksum and nothing else, each file belongs to one part, no library is taken for Torvik's own work,
and all that is spoken of is described.
usage: sbom_test.py ZIP"""

import hashlib
import json
import sys
import zipfile
from pathlib import PurePosixPath

OWN_NAME = "licences/torvik.spdx.json"
PARTS = {"torvik", "qt6-base", "pugixml", "clipper", "hershey-fonts-data", "gcc-runtime", "winpthreads"}


def packed_files(name):
    with zipfile.ZipFile(name) as packed:
        return {PurePosixPath(*PurePosixPath(entry.filename).parts[1:]).as_posix(): packed.read(entry)
                for entry in packed.infolist() if not entry.is_dir()}


def faults(files, told):
    sums = {"./" + name: {"SHA1": hashlib.sha1(content).hexdigest(),
                          "SHA256": hashlib.sha256(content).hexdigest()}
            for name, content in files.items()}
    listed = {file["fileName"]: {s["algorithm"]: s["checksumValue"] for s in file["checksums"]}
              for file in told["files"]}
    for name in sorted(sums.keys() | listed.keys()):
        if sums.get(name) != listed.get(name):
            yield f"{name}: {listed.get(name)} is listed, {sums.get(name)} is packed"

    packages = {package["SPDXID"]: package for package in told["packages"]}
    if {package["name"] for package in packages.values()} != PARTS:
        yield "other parts are described than there are"
    yield from (f"{package['name']} has no version or licence" for package in packages.values()
                if not package["versionInfo"] or package["licenseDeclared"] == "NOASSERTION")

    names = {file["SPDXID"]: file["fileName"] for file in told["files"]}
    owners = {}
    linked = {told["SPDXID"]}
    for relation in told["relationships"]:
        linked.add(relation["relatedSpdxElement"])
        if relation["relatedSpdxElement"] in names:
            owners.setdefault(relation["relatedSpdxElement"], []).append(relation["spdxElementId"])
    if linked != {told["SPDXID"], *packages, *names}:
        yield "something is related that is not described, or described and not related"
    for key, name in names.items():
        owner = [packages[package]["name"] for package in owners.get(key, [])]
        if len(owner) != 1 or (owner == ["torvik"]) == name.endswith(".dll"):
            yield f"{name} belongs to {owner}"


def main():
    files = packed_files(sys.argv[1])
    found = list(faults(files, json.loads(files.pop(OWN_NAME))))
    sys.exit("\n".join(["FAILED: the list of parts", *found]) if found else 0)


if __name__ == "__main__":
    main()
