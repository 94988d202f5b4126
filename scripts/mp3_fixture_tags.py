#!/usr/bin/python3
"""Tags the MP3 fixtures with mutagen, builds the hand-made tag variants and
writes manifest.tsv with what mutagen and ffprobe report. With --readback CLI
it writes tags with "tarnwick-cli tags --set" and checks them with mutagen and
ffprobe instead (readback.tsv)."""
import os
import shutil
import struct
import subprocess
import sys
import tempfile

from mutagen.id3 import (COMM, ID3, PRIV, TALB, TCON, TDRC, TIT2, TKEY, TPE1, TRCK, TXXX,
                         TYER, USLT, WOAR, WXXX, ParseID3v1)
from mutagen.mp3 import MP3, BitrateMode

FRAMES = ["TIT2", "TPE1", "TALB", "TCON", "TRCK", "TYER", "TDRC", "COMM", "TXXX", "WXXX",
          "USLT", "WOAR", "TKEY"]


def syncsafe(n):
    return bytes([(n >> 21) & 0x7F, (n >> 14) & 0x7F, (n >> 7) & 0x7F, n & 0x7F])


def unsync(data):
    out = bytearray()
    for i, b in enumerate(data):
        out.append(b)
        if b == 0xFF and (i + 1 == len(data) or data[i + 1] == 0 or data[i + 1] >= 0xE0):
            out.append(0)
    return bytes(out)


def audio_of(path):
    """The file without a version 2 tag at its start."""
    data = open(path, "rb").read()
    if data[:3] == b"ID3":
        size = (data[6] << 21) | (data[7] << 14) | (data[8] << 7) | data[9]
        return data[10 + size:]
    return data


def frame23(fid, payload, flags=0):
    return fid.encode() + struct.pack(">IH", len(payload), flags) + payload


def frame24(fid, payload, flags=0):
    return fid.encode() + syncsafe(len(payload)) + struct.pack(">H", flags) + payload


def tag(version, flags, body):
    return b"ID3" + bytes([version, 0, flags]) + syncsafe(len(body)) + body


def write(path, tag_bytes, audio):
    with open(path, "wb") as f:
        f.write(tag_bytes + audio)


def mutagen_tags(out, base):
    """Version 2 tags written by mutagen on copies of one lame stream."""
    def save(name, frames, version):
        path = os.path.join(out, name)
        shutil.copyfile(base, path)
        tags = ID3()
        for f in frames:
            tags.add(f)
        tags.save(path, v2_version=version, v1=0, padding=lambda info: 32)

    save("v23_latin1.mp3", [
        TIT2(encoding=0, text="Caf\u00e9 Title"), TPE1(encoding=0, text="Latin Artist"),
        TALB(encoding=0, text="Latin Album"), TYER(encoding=0, text="1999"),
        TCON(encoding=0, text="(17)"), TRCK(encoding=0, text="7/12"),
        COMM(encoding=0, lang="eng", desc="", text="latin comment"),
        TXXX(encoding=0, desc="note", text="user text"),
        WXXX(encoding=0, desc="home", url="http://example.org/"),
        USLT(encoding=0, lang="eng", desc="", text="la la la"),
        WOAR(url="http://artist.example/"),
    ], 3)
    save("v23_utf16.mp3", [
        TIT2(encoding=1, text="\u0141\u00f3d\u017a Title"), TPE1(encoding=1, text="Wide Artist"),
        TALB(encoding=1, text="Wide Album"), TCON(encoding=1, text="Jazz"),
        COMM(encoding=1, lang="deu", desc="desc", text="wide comment"),
        TXXX(encoding=1, desc="k", text="wide user"),
        WXXX(encoding=1, desc="d", url="http://wide.example/"),
        USLT(encoding=1, lang="eng", desc="", text="wide lyrics"),
    ], 3)
    save("v24_utf8.mp3", [
        TIT2(encoding=3, text="\u00dcber Title"), TPE1(encoding=3, text="UTF8 Artist"),
        TDRC(encoding=3, text="2005-06-01"), TCON(encoding=3, text="(8)"),
        COMM(encoding=3, lang="eng", desc="", text="utf8 comment"),
        TXXX(encoding=3, desc="x", text="utf8 user"),
        PRIV(owner="org.example", data=b"\x01\x02\x03"),
    ], 4)
    save("v24_utf16be.mp3", [
        TIT2(encoding=2, text="Big Endian Title"), TPE1(encoding=2, text="BE Artist"),
        TKEY(encoding=2, text="Am"), COMM(encoding=2, lang="eng", desc="", text="be comment"),
    ], 4)


def hand_tags(out, audio):
    """Tags that no tool here writes: unsynchronisation, extended headers, 2.2."""
    title = b"\x00Title \xff" + b"\x00"   # Latin-1, ends in 0xFF before the NUL
    body = frame23("TIT2", title) + frame23("TPE1", b"\x00Unsync Artist\x00")
    write(os.path.join(out, "v23_unsync.mp3"), tag(3, 0x80, unsync(body)), audio)

    raw = b"\x00Frame \xff\xe0 Unsync\x00"
    data = syncsafe(len(raw)) + unsync(raw)
    body = frame24("TIT2", data, 0x0003) + frame24("TPE1", b"\x03Frame Artist\x00")
    write(os.path.join(out, "v24_frame_unsync.mp3"), tag(4, 0, body + bytes(16)), audio)

    frames = frame23("TIT2", b"\x00Extended 2.3\x00") + frame23("TALB", b"\x00Ext Album\x00")
    ext = struct.pack(">IHI", 6, 0, 0)
    write(os.path.join(out, "v23_exthdr.mp3"), tag(3, 0x40, ext + frames + bytes(20)), audio)

    frames = frame24("TIT2", b"\x03Extended 2.4\x00") + frame24("TALB", b"\x03Ext Album 4\x00")
    ext = syncsafe(6) + b"\x01\x00"
    write(os.path.join(out, "v24_exthdr.mp3"), tag(4, 0x40, ext + frames + bytes(20)), audio)

    def f22(fid, payload):
        return fid.encode() + struct.pack(">I", len(payload))[1:] + payload
    body = (f22("TT2", b"\x00Old Title\x00") + f22("TP1", b"\x00Old Artist\x00") +
            f22("TAL", b"\x00Old Album\x00") + f22("TYE", b"\x001988\x00") +
            f22("TCO", b"\x00(13)\x00") + f22("COM", b"\x00engdesc\x00old comment\x00") +
            f22("PIC", b"\x00PNG\x03\x00\x89PNG") + bytes(12))
    write(os.path.join(out, "v22.mp3"), tag(2, 0, body), audio)

    frames = frame24("TIT2", b"\x00Footer Title\x00")
    body = frames + bytes(8)
    header = tag(4, 0x10, body)
    footer = b"3DI" + header[3:10]
    write(os.path.join(out, "v24_footer.mp3"), header + footer, audio)


def ffprobe(path):
    res = subprocess.run(["ffprobe", "-v", "error", "-show_entries",
                          "stream=sample_rate,channels:format=duration", "-of",
                          "default=nw=1", path], capture_output=True, text=True)
    facts = {}
    for line in res.stdout.splitlines():
        key, _, value = line.partition("=")
        facts[key] = value
    return facts


def packets(path):
    """The audio frames ffprobe decodes: the audio must survive a tag rewrite."""
    res = subprocess.run(["ffprobe", "-v", "error", "-count_packets", "-show_entries",
                          "stream=nb_read_packets", "-of", "csv=p=0", path],
                         capture_output=True, text=True)
    return res.stdout.strip()


def text_of(frame):
    if hasattr(frame, "url"):
        return frame.url
    if isinstance(frame.text, str):
        return frame.text
    return "/".join(str(t) for t in frame.text)


def describe(path):
    rows = []
    data = open(path, "rb").read()
    if len(data) >= 128 and data[-128:-125] == b"TAG":
        v1 = ParseID3v1(data[-128:]) or {}
        for fid in ("TIT2", "TPE1", "TALB", "TDRC", "TCON", "TRCK", "COMM"):
            if fid in v1:
                rows.append(("v1." + fid, text_of(v1[fid])))
    try:
        tags = ID3(path)
        rows.append(("v2.version", str(tags.version[1])))
        for fid in FRAMES:
            frames = tags.getall(fid)
            if frames:
                rows.append(("v2." + fid, text_of(frames[-1])))
        for fr in tags.getall("PRIV"):
            rows.append(("v2.PRIV", fr.owner))
    except Exception:
        pass
    try:
        info = MP3(path).info
        rows += [("mutagen.sample_rate", str(info.sample_rate)),
                 ("mutagen.channels", str(info.channels)),
                 ("mutagen.version", str(info.version).rstrip("0").rstrip(".")),
                 ("mutagen.layer", str(info.layer)),
                 ("mutagen.vbr", "1" if info.bitrate_mode == BitrateMode.VBR else "0"),
                 ("mutagen.length_ms", str(round(info.length * 1000))),
                 ("mutagen.bitrate", str(info.bitrate))]
    except Exception:
        pass
    for key, value in ffprobe(path).items():
        rows.append(("ffprobe." + key, value))
    return rows


def manifest(out):
    with open(os.path.join(out, "manifest.tsv"), "w") as f:
        f.write("# file\tkey\tvalue: what mutagen and ffprobe report\n")
        for name in sorted(os.listdir(out)):
            if name.endswith((".mp3", ".wav")):
                for key, value in describe(os.path.join(out, name)):
                    f.write(f"{name}\t{key}\t{value}\n")


def readback(cli, out):
    work = tempfile.mkdtemp()
    rows = []
    failures = 0
    cases = [
        ("v23_latin1.mp3", ["--v23"], {"TIT2": "New Title", "TPE1": "New Artist"}),
        ("v24_utf8.mp3", ["--v23"], {"TIT2": "Rewritten", "COMM": "new comment"}),
        ("lame_cbr.mp3", ["--v24"], {"TIT2": "Fresh", "TPE1": "Fresh Artist"}),
    ]
    names = {"TIT2": "title", "TPE1": "artist", "COMM": "comment"}
    for name, flags, values in cases:
        path = os.path.join(work, name)
        shutil.copyfile(os.path.join(out, name), path)
        args = [cli, "tags", path] + flags + ["--set", "v1.title=V1 Title", "--set", "v1.track=7"]
        for fid, value in values.items():
            args += ["--set", f"v2.{names[fid]}={value}"]
        subprocess.run(args, check=True)
        tags = ID3(path)
        for fid, value in values.items():
            got = text_of(tags.getall(fid)[-1]) if tags.getall(fid) else ""
            ok = got == value
            failures += not ok
            rows.append((name, "v2." + fid, value, got, "ok" if ok else "MISMATCH"))
        if name == "v24_utf8.mp3":
            kept = [f.owner for f in tags.getall("PRIV")]
            ok = kept == ["org.example"] and tags.version[1] == 3
            failures += not ok
            rows.append((name, "v2.PRIV", "org.example", ",".join(kept), "ok" if ok else "MISMATCH"))
        v1 = ParseID3v1(open(path, "rb").read()[-128:]) or {}
        got = text_of(v1["TRCK"]) if "TRCK" in v1 else ""
        failures += got != "7"
        rows.append((name, "v1.TRCK", "7", got, "ok" if got == "7" else "MISMATCH"))
        before, after = packets(os.path.join(out, name)), packets(path)
        ok = before == after and before != ""
        failures += not ok
        rows.append((name, "ffprobe.packets", before, after, "ok" if ok else "MISMATCH"))
    with open(os.path.join(out, "readback.tsv"), "w") as f:
        f.write("# file\tkey\twritten\tread back\tresult\n")
        for row in rows:
            f.write("\t".join(row) + "\n")
    shutil.rmtree(work)
    if failures:
        sys.exit(f"readback: {failures} mismatches")


def main():
    if sys.argv[1] == "--readback":
        readback(sys.argv[2], sys.argv[3])
        return
    out = sys.argv[1]
    base = os.path.join(out, "lame_plain.mp3")
    mutagen_tags(out, base)
    hand_tags(out, audio_of(base))
    manifest(out)


if __name__ == "__main__":
    main()
