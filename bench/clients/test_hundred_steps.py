"""How long a test of a hundred steps takes, the start of pytest and of the telephone included."""

from displayapi import Phone


def test_a_hundred_steps(phone: Phone) -> None:
    phone.press("ok")
    phone.wait_for("Call log", selected=True)
    for _ in range(25):
        phone.press("down")
        phone.wait_for("Contacts", selected=True)
        phone.advance(1)
        phone.press("up")
        phone.wait_for("Call log", selected=True)
