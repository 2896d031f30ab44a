#!/usr/bin/env python3
"""reader.py POSITIONS FILE: reads a proposal document into a dictionary of questions and answers and prints it as JSON.

Written from docs/contract alone: README.md and positions.md for the rules, positions.json for the places.
"""

import json
import re
import sys
import xml.etree.ElementTree as ElementTree

YES_NO = {"1": "Yes", "0": "No", "2": ""}


def nodes(root, path):
    """Every element at the path, with its path in this document and the numbers in it."""
    found = [("", root, ())]
    for step in path.split("/"):
        numbered = step.endswith("<n>")
        pattern = re.compile(re.escape(step[:-3]) + r"(\d+)$" if numbered else re.escape(step) + "$")
        deeper = []
        for where, node, numbers in found:
            for child in node:
                match = pattern.match(child.tag)
                if match:
                    more = numbers + (int(match.group(1)),) if numbered else numbers
                    deeper.append((where + "/" + child.tag, child, more))
        found = deeper
    return [(where[1:], node, numbers) for where, node, numbers in found]


def pieces(text, place, cut):
    """The value in the text, with the number of the part where the place names each part in its turn."""
    found = [((), text)]
    for separator, number in place:
        deeper = []
        for numbers, part in found:
            parts = part.split(separator)
            if number == 0:  # a separator stands behind the last part too
                deeper += [(numbers + (i,), each) for i, each in enumerate(parts[:-1], 1)]
            elif number <= len(parts):
                deeper.append((numbers, parts[number - 1]))
        found = deeper
    if cut == "first character":
        return [(numbers, part[:1]) for numbers, part in found]
    if cut == "behind the first character":
        return [(numbers, part[1:]) for numbers, part in found]
    if cut == "before the last character":
        return [(numbers, part[:-1]) for numbers, part in found]
    if cut == "last character":
        return [(numbers, part[-1:]) for numbers, part in found]
    return found


def chowk(text):
    """A Yes to the first question without a Yes to the second lacks a separator."""
    return {"1#01#2": "1#0#2", "1#21#2": "1#2#2"}.get(text, text)


def meaning(value, text):
    if value["kind"] == "yes/no":
        return YES_NO.get(text, text)
    if value["kind"] == "code":
        return value["codes"].get(text, text)
    return text


def without_draft(texts):
    """A payment by draft has no mode: what stands behind it comes one element earlier."""
    places = ["PAYMENTDETAIL/" + name for name in ("PAYMODE", "PAYDATE", "DRAFTCHQNO", "BANKNAME", "BRANCHNM")]
    if texts.get(places[0]) not in ("CASH", "PAYORDER"):
        for place, before in zip(places[:0:-1], places[-2::-1]):
            texts[place] = texts.get(before, "")
        texts[places[0]] = ""
    return texts


def read(positions, document):
    """The answers by (question, where it stands), each with what positions.json says of it, and the numbers in its place."""
    root = ElementTree.fromstring(document)
    stand = []
    for element in positions["elements"]:
        for where, node, numbers in nodes(root, element["path"]):
            stand.append((element, where, numbers, node.text or ""))
    texts = without_draft({where: text for _, where, _, text in stand})
    answers = {}
    for element, where, numbers, _ in stand:
        text = texts[where]
        if element["path"] == "SECTION-IV/ONESIX-RAD":
            text = chowk(text)
        for value in element["values"]:
            for further, piece in pieces(text, value["place"], value["cut"]):
                at = where + "".join(" part %d" % number for number in further)
                answers[value["question"], at] = (meaning(value, piece), value, numbers + further)
    return answers


def dictionary(answers):
    """The answers by their questions; where several have the same words, the place tells them apart."""
    words = [question for question, _ in answers]
    alike = {question for question in words if words.count(question) > 1}
    return {
        question + (" (" + at + ")" if question in alike else ""): answer
        for (question, at), (answer, _, _) in answers.items()
    }


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as file:
        known = json.load(file)
    with open(sys.argv[2], "rb") as file:
        print(json.dumps(dictionary(read(known, file.read())), indent=1, ensure_ascii=False))
