$condi3 = $_POST["condi3"];
$follo5 = $_POST["follo5"];
validate_radio_notselected($condi7d,$follo5," 1b. You must enter a day of the week for question 1b");

$condi7 = $_POST["condi7"];
$follo9 = $_POST["follo9"];
validate_radio($,$follo9," 2b. Please tell us how many guests are in your party for question 2b");

